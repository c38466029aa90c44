<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en_GB">
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation>
            <numerusform>%n item could not be read</numerusform>
            <numerusform>%n items could not be read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation>
            <numerusform>and %n more in the same folder</numerusform>
            <numerusform>and %n more in the same folder</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation>
            <numerusform>Used %n time</numerusform>
            <numerusform>Used %n times</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation>
            <numerusform>Locked after %n minute without input</numerusform>
            <numerusform>Locked after %n minutes without input</numerusform>
        </translation>
    </message>
</context>
</TS>
