<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Donkere weergave</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
</context>
</TS>
