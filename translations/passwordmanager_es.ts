<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
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
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation type="unfinished">
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
    <name>CategoryModel</name>
    <message>
        <source>%1, %2</source>
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
    <name>CreateSafePage</name>
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
    <message>
        <source>Create safe failed!</source>
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
    <name>FramedDialog</name>
    <message>
        <source>Close</source>
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
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
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
        </translation>
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
        <source>Press Ctrl+N to add a login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items of this kind appear here.</source>
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
        <source>New login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New login (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most used</source>
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
        </translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add a login.</source>
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
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit (Ctrl+E)</source>
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
        <source>Unlock your safe to go on</source>
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
    <name>PMTranslator</name>
    <message>
        <source>SettingsLocaleTitle</source>
        <translation>Español</translation>
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
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
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
    <name>SafeItemEditor</name>
    <message>
        <source>New login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit login</source>
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
</context>
</TS>
