<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>Daha Fazla</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Koyu görünüm</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha Fazla</translation>
    </message>
</context>
</TS>
