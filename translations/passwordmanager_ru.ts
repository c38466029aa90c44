<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_GB">
<context>
    <name>AttachmentActions</name>
    <message>
        <source>Maximum attachment file size is %1 megabytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no file, or it can not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder of the safe is full or can not be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the copy now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its file is missing in the safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than 1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t attach.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t read the attachment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of %1 in the safe is missing or damaged. A backup may hold it undamaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t save the attachment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written. Check the free space and the permissions there, or choose another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a program, or can run one. It can be saved and looked at there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t open the attachment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No private copy of %1 could be made. Check the free space, and whether the preview shows it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program was found that opens %1. It can be saved instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is open in another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A copy lies readable in a private folder until the safe locks. It can not be written to: changes made there are not taken back into the safe. Save them under another name and attach that file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t remove the copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program may still hold it open. It is tried again when the safe locks.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentInput</name>
    <message>
        <source>Picture %1.png</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentPreview</name>
    <message>
        <source>There is no preview for this kind of file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the beginning; save the file to see all of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of one width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentRow</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentsCard</name>
    <message>
        <source>Attach files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files and pictures can also be dropped here, or pasted with Ctrl+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Being encrypted…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Their files were left as they are. A backup may hold them undamaged:
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusSessionWatch</name>
    <message>
        <source>Locking the safe</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapsIndicator</name>
    <message>
        <source>CAPS ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAPS OFF</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardFace</name>
    <message>
        <source>Click to copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryListView</name>
    <message>
        <source>Restore all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryModel</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CopyNotice</name>
    <message>
        <source>Value copied to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clears in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CountryField</name>
    <message>
        <source>%1  +%2</source>
        <extracomment>a country and its dialling code</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all countries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all countries (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateSafeForm</name>
    <message>
        <source>New Safe name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create safe failed!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateSafePage</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only you know its password. It cannot be recovered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create
another one?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateSafeRules</name>
    <message>
        <source>Safe name can not be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password can not be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>Can&apos;t keep the edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you were typing could not be kept, as its file could not be written. Check the free space and the permissions of the program&apos;s data folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>an item without a title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You were adding %1 when the safe locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You were editing %1 when the safe locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you had typed was kept, encrypted, and is not saved yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item was deleted meanwhile. What you had typed can become a new item.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item is in the trash now. What you had typed was kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item was changed meanwhile. What you had typed was kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An edit that was kept could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its file is damaged or belongs to another password, and was left as it is:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in the trash. What would you like to do with what you had typed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed after you had begun. What would you like to do with what you had typed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue as a new item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to discard what you had typed about %1?
It can not be restored.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExpiryText</name>
    <message>
        <source>Expired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires in 1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The folder of the safe is not there. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no safe in the folder any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password of the safe is being changed, or it is being archived already. Try again when that is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some of the safe&apos;s files can&apos;t be read. Check that its folder is there and that you may read and write it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive can&apos;t be written. Check the free space and that you may write to its folder, or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The safe holds more than the 4 GiB that fit into an archive. Copy its folder instead, or take out large attachments.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive could not be read back after it was written, and was removed. Choose a folder on another drive.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionPage</name>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Chromium, Chrome or Edge open the address %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>%1, hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View text under dots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldRules</name>
    <message>
        <source>Required field is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Url is invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please use 4-digit value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please use 3-digit value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct value is up to 26 characters in range A-Z including spaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect card number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a complete address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a country code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message>
        <source>The same password as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing changed since %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address begins with http: others can read along</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop ignoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change it…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the site&apos;s page for a new password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which language do you want to use?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It keeps your passwords. Only you know its password, and it cannot be recovered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill forms in your browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension fills your logins into the pages they belong to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormFillFlow</name>
    <message>
        <source>Can&apos;t login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item %1 has wrong url: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files could not be written; what they held before is still there. Check the free space and the permissions, then save again:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t use the hotkey.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is used by another program. Choose another combination in the settings, or end that program and start this one anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t back up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

Earlier backups are left as they are, in:
%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthDialog</name>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older than 2 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not on https</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking at the items…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to what is not ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignored (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all items have been looked at yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthTile</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyLineEdit</name>
    <message>
        <source>Press keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press a combination of keys; Backspace clears it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyRules</name>
    <message>
        <source>Use it together with Ctrl, Alt or Meta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is taken by: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>The file is not there or can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file would unpack to more than 4 GiB, or to a hundred times its size. No safe does that, so it was not imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is not an archive. Choose a file that was exported or backed up from a safe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged or was cut short. Copy it again from where it came from, or choose another backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive has a password of its own or is packed in a way that can&apos;t be read. Pack it again as a plain ZIP file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive holds a file that would be written outside the safe. Somebody may have tampered with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive holds two files of the same name. Somebody may have tampered with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no safe in this archive. Choose a file that was exported or backed up from a safe.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to delete the item forever?
It can not be restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to remove item?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to delete all items in the trash forever?
They can not be restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Their attachment is deleted as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When logging in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card holder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Routing number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IBAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SWIFT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Birth date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address line 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Business phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passport number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passport type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Birth place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issued</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use application setting (fill and submit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use application setting (only fill)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Male</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Female</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Social security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Driver licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Driver licences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FTP account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FTP accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software licences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>New login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New credit card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bank account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New identity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New passport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New social security number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New driver licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New secure note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New FTP account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New software licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy card number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy account number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy passport number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy licence number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy licence key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemListPane</name>
    <message>
        <source>Mark an item with the star, and it appears here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items appear here once you have logged in with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No items found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try fewer words, or press Esc to see all items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No items in this category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you remove stays here until you delete it forever.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your safe is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your user names and passwords here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add your first login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Ctrl+N to add the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New item (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Remove from favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy user name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete forever…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in (Ctrl+Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modified %1 · created %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used once</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit (F2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are empty required values.
Fill and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The object has been modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are empty required fields. What would you like to do?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have not saved changes yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are values that are no date or no number.
Correct them and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineInput</name>
    <message>
        <source>Open in browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in browser (Alt+Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e.g. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MM / YYYY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a date (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Moved to trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MasterPasswordPage</name>
    <message>
        <source>Safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlocking: %1 of %2 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MonthPopup</name>
    <message>
        <source>Previous year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next year</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewItemMenu</name>
    <message>
        <source>New item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewSafePage</name>
    <message>
        <source>The hint is shown to everyone who opens this window. Let it remind you of the password, and nobody else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your safe “%1” is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoticeBanner</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PMTranslator</name>
    <message>
        <source>SettingsLocaleTitle</source>
        <translation>Русский</translation>
    </message>
</context>
<context>
    <name>PMUiProvider</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glaceron Password Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1

Ctrl+N adds a login, Ctrl+F searches, Ctrl+E edits, Ctrl+S saves.
Ctrl+B copies the user name, Ctrl+Shift+C the password.
Ctrl+Return logs in, Ctrl+L locks the safe, Ctrl+Q ends the program.

The typeface is Inter (SIL Open Font License), the icons are Tabler Icons (MIT License).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>View text under dots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View text under dots (Ctrl+R)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordGeneratorDialog</name>
    <message>
        <source>Password Generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special chars:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passwords are remembered only while a safe is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the password of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordWeakness</name>
    <message>
        <source>a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a word from a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a repetition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a digit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a few characters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhoneInput</name>
    <message>
        <source>Country code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: country code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramShortcuts</name>
    <message>
        <source>copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copy the user name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copy the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>password generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>adds an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>searches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>opens the page of a login and fills it in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>locks the safe</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SafeItemEditor</name>
    <message>
        <source>Editing “%1” · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>small</source>
        <extracomment>&quot;small&quot; where a language writes names inside a sentence small, else &quot;as they are&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More fields: %1</source>
        <extracomment>names of fields</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More fields: %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>favourite</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trash</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>weak</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expired</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expiring</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kind</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds items with all the words in title, user name, address or note.
kind:card shows one kind of item.
is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.</source>
        <comment>with the words that are translated as parts of a search</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecretInput</name>
    <message>
        <source>Generate password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate password (Ctrl+G)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to clipboard (Ctrl+C)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecureWindow</name>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some changes could not be written; what was there before still is. Check that the folder of the safe can be written to and that there is free space, then try again:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lose changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: choose</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything in the program is shown in it, at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language was not changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks from time to time whether there is a newer version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new version download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time until it locks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long neither keyboard nor mouse are used, in any program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>auto-lock idle minutes away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock after inactivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The safe locks when you leave the computer alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>auto-lock idle away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock when the screen saver starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The safe locks together with the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>auto-lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear copied values after 60 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you copied from the safe does not stay on the clipboard, where other programs can read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clipboard copy password wipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in from the main window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the page&apos;s form is only filled or also sent. A login can have its own way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic form enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in from the quick-access window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same for logins that you choose while you are in the browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic form enter extension plugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open addresses in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the browser shows the page of a login that is not open yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tab window extension plugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A safe that has not changed since is not copied again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interval how often</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best on another disk. The copies are encrypted like the safe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>path directory archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies to keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of each safe; when there are more, the oldest are deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder cannot be written to: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back up automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies of all safes that open with their master password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>archive copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock Safe hotkey:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shortcut key combination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browser plugin hotkey:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the quick-access window for the page in your browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light or dark, always or as the system has it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>theme mode night appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of all texts, with the controls around them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>font large small zoom scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text size was not changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When it is off, the system&apos;s setting for animations holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reduced motion effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings hold until the program ends, but they could not be written to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locks the safe from any program; on Wayland, from this program&apos;s windows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetupWizard</name>
    <message>
        <source>Set up Glaceron Password Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutTable</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Into the list and back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the editor, or clear the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in, from the list or the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the user name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the password, or the number of a card or document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach the copied file to the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select more items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu of the items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the last removal back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock the safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>No browser with the extension is connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it was made for is no longer edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · unlocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish setting up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnackBar</name>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SortButton</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open Main Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnlockLogic</name>
    <message>
        <source>This safe is not available. Check that its folder is there:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No any safe is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The safe could not be read. Check that its folder is there and that you may read it, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock your safe to go on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowMover</name>
    <message>
        <source>Minimise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
