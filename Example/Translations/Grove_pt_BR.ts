<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>HomeScreen</name>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
</context>
<context>
    <name>MoreScreen</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Aparência escura</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
</context>
</TS>
