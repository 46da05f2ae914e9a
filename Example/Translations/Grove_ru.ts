<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Тёмное оформление</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
</TS>
