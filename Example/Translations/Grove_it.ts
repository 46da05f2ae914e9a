<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Aspetto scuro</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
</TS>
