<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Dark Appearance</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
</context>
</TS>
