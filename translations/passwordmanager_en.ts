<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en_GB">
<context>
    <name>ArchiveDesk</name>
    <message numerus="yes">
        <source>%n files could not be read and are not in it.</source>
        <translation>
            <numerusform>%n file could not be read and is not in it.</numerusform>
            <numerusform>%n files could not be read and are not in it.</numerusform>
        </translation>
    </message>
</context>
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
    <name>CloudOffer</name>
    <message numerus="yes">
        <source>You have %n safes in your cloud folder.</source>
        <translation>
            <numerusform>You have %n safe in your cloud folder.</numerusform>
            <numerusform>You have %n safes in your cloud folder.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloudTexts</name>
    <message numerus="yes">
        <source>Waiting for %n files to arrive</source>
        <translation>
            <numerusform>Waiting for %n file to arrive</numerusform>
            <numerusform>Waiting for %n files to arrive</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came from the cloud folder</source>
        <translation>
            <numerusform>%n item came from the cloud folder</numerusform>
            <numerusform>%n items came from the cloud folder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items were deleted on another computer</source>
        <translation>
            <numerusform>%n item was deleted on another computer</numerusform>
            <numerusform>%n items were deleted on another computer</numerusform>
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
    <name>ExportDialog</name>
    <message numerus="yes">
        <source>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</source>
        <translation>
            <numerusform>%n item is in “%1” now. Everyone who opens the file can read it: delete the file when it has served.</numerusform>
            <numerusform>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n selected items</source>
        <translation>
            <numerusform>The selected item</numerusform>
            <numerusform>The %n selected items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items that are no logins are left out.</source>
        <translation>
            <numerusform>%n item that is no login is left out.</numerusform>
            <numerusform>%n items that are no logins are left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are left out. An archive of the safe holds them.</source>
        <translation>
            <numerusform>%n attachment is left out. An archive of the safe holds it.</numerusform>
            <numerusform>%n attachments are left out. An archive of the safe holds them.</numerusform>
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
    <name>MoveInPreview</name>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n logins will be added</source>
        <translation>
            <numerusform>%n login will be added</numerusform>
            <numerusform>%n logins will be added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items will be added</source>
        <translation>
            <numerusform>%n item will be added</numerusform>
            <numerusform>%n items will be added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n are already there</source>
        <translation>
            <numerusform>%n is already there</numerusform>
            <numerusform>%n are already there</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable</source>
        <translation>
            <numerusform>%n unreadable</numerusform>
            <numerusform>%n unreadable</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n left out</numerusform>
            <numerusform>%n left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n logins</source>
        <translation>
            <numerusform>Add %n login</numerusform>
            <numerusform>Add %n logins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n items</source>
        <translation>
            <numerusform>Add %n item</numerusform>
            <numerusform>Add %n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveInReport</name>
    <message numerus="yes">
        <source>%n logins came in</source>
        <translation>
            <numerusform>%n login came in</numerusform>
            <numerusform>%n logins came in</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came in</source>
        <translation>
            <numerusform>%n item came in</numerusform>
            <numerusform>%n items came in</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SafeDesk</name>
    <message numerus="yes">
        <source>“%1” is gone. %n other files were in its folder and are still there:
%2</source>
        <translation>
            <numerusform>“%1” is gone. %n other file was in its folder and is still there:
%2</numerusform>
            <numerusform>“%1” is gone. %n other files were in its folder and are still there:
%2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveLoginDialog</name>
    <message numerus="yes">
        <source>What you typed is kept for %n more seconds, then forgotten.</source>
        <translation>
            <numerusform>What you typed is kept for %n more second, then forgotten.</numerusform>
            <numerusform>What you typed is kept for %n more seconds, then forgotten.</numerusform>
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
