<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Generic</name>
    <message>
        <source>1.Choices</source>
        <translation>Choices</translation>
    </message>
    <message>
        <source>2.Numbers</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>3.Texts</source>
        <translation>Texts</translation>
    </message>
</context>
</TS>
