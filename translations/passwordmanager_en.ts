<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en_GB">
<context>
    <name>AttachmentActions</name>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation>
            <numerusform>%n attachment is open in another program.</numerusform>
            <numerusform>%n attachments are open in other programs.</numerusform>
        </translation>
    </message>
</context>
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
    <name>ExpiryText</name>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation>
            <numerusform>Expires in %n day</numerusform>
            <numerusform>Expires in %n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation>
            <numerusform>The same password as %1 and %n more</numerusform>
            <numerusform>The same password as %1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation>
            <numerusform>Do you want to delete %n item forever?
It can not be restored.</numerusform>
            <numerusform>Do you want to delete %n items forever?
They can not be restored.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation>
            <numerusform>Do you want to remove %n item?</numerusform>
            <numerusform>Do you want to remove %n items?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation>
            <numerusform>Their %n attachment is deleted as well.</numerusform>
            <numerusform>Their %n attachments are deleted as well.</numerusform>
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
<context>
    <name>MainView</name>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation>
            <numerusform>%n item moved to trash</numerusform>
            <numerusform>%n items moved to trash</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation>
            <numerusform>%n item selected</numerusform>
            <numerusform>%n items selected</numerusform>
        </translation>
    </message>
</context>
</TS>
