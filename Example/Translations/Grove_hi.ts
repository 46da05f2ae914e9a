<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>अधिक</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>वापस</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>डार्क थीम</translation>
    </message>
    <message>
        <source>More</source>
        <translation>अधिक</translation>
    </message>
</context>
</TS>
