<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_GB">
<context>
    <name>ApprovalDesk</name>
    <message>
        <source>Let Firefox connect?</source>
        <translation>Firefox verbinden lassen?</translation>
    </message>
    <message>
        <source>An extension in Firefox wants to connect to this program. If you allow it, it can fill your logins into pages and offer to save new ones.

Allow it if you have just added the extension to Firefox, or to another profile of it. If you do not know where this comes from, choose “Don&apos;t allow”.

You can change your mind in the settings, on the page “Browser”.</source>
        <translation>Eine Erweiterung in Firefox möchte sich mit diesem Programm verbinden. Wenn Sie es erlauben, kann sie Ihre Logins in Seiten eintragen und anbieten, neue zu speichern.

Erlauben Sie es, wenn Sie die Erweiterung gerade zu Firefox oder zu einem weiteren Profil hinzugefügt haben. Wenn Sie nicht wissen, woher diese Frage kommt, wählen Sie „Nicht erlauben“.

Sie können sich in den Einstellungen auf der Seite „Browser“ anders entscheiden.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Don&apos;t allow</source>
        <translation>Nicht erlauben</translation>
    </message>
</context>
<context>
    <name>ApprovalsPanel</name>
    <message>
        <source>None yet. When one wants to connect, you are asked.</source>
        <translation>Noch keine. Wenn sich eine verbinden möchte, werden Sie gefragt.</translation>
    </message>
    <message>
        <source>Each Firefox profile gives the extension an id of its own, so you say which ones may connect.</source>
        <translation>Jedes Profil von Firefox gibt der Erweiterung eine eigene Kennung; darum sagen Sie, welche sich verbinden dürfen.</translation>
    </message>
    <message>
        <source>Extensions in Firefox</source>
        <translation>Erweiterungen in Firefox</translation>
    </message>
    <message>
        <source>%1: may connect</source>
        <translation>%1: darf sich verbinden</translation>
    </message>
    <message>
        <source>%1: may not connect</source>
        <translation>%1: darf sich nicht verbinden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>%1 erlauben</translation>
    </message>
</context>
<context>
    <name>ArchiveDesk</name>
    <message>
        <source>Export safe</source>
        <translation>Tresor exportieren</translation>
    </message>
    <message>
        <source>GPM file (*.gpm)</source>
        <translation>GPM-Datei (*.gpm)</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>„%1“ wird exportiert …</translation>
    </message>
    <message>
        <source>“%1” was not exported. %2</source>
        <translation>„%1“ wurde nicht exportiert. %2</translation>
    </message>
    <message>
        <source>“%1” is exported. Everything in the file is encrypted; it opens with the master password of today:
%2</source>
        <translation>„%1“ ist exportiert. Alles in der Datei ist verschlüsselt; sie öffnet sich mit dem heutigen Masterpasswort:
%2</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read and are not in it.</source>
        <translation>
            <numerusform>Eine Datei konnte nicht gelesen werden und fehlt darin.</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden und fehlen darin.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Open GPM file on your computer</source>
        <translation>GPM-Datei auf dem Computer öffnen</translation>
    </message>
    <message>
        <source>Import safe</source>
        <translation>Tresor importieren</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>„%1“ wird importiert …</translation>
    </message>
    <message>
        <source>Import from &quot;%1&quot; failed!</source>
        <translation>Import von „%1“ fehlgeschlagen!</translation>
    </message>
    <message>
        <source>“%1” is now in the list of your safes. It opens with the master password that it had when the file was made.</source>
        <translation>„%1“ steht jetzt in der Liste Ihrer Tresore. Er öffnet sich mit dem Masterpasswort, das er beim Schreiben der Datei hatte.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Restoring “%1”…</source>
        <translation>„%1“ wird wiederhergestellt …</translation>
    </message>
</context>
<context>
    <name>AttachmentActions</name>
    <message>
        <source>Maximum attachment file size is %1 megabytes</source>
        <translation>Anhänge dürfen höchstens %1 Megabyte groß sein</translation>
    </message>
    <message>
        <source>This is no file, or it can not be read</source>
        <translation>Das ist keine Datei, oder sie ist nicht lesbar</translation>
    </message>
    <message>
        <source>The folder of the safe is full or can not be written to</source>
        <translation>Der Ordner des Tresors ist voll oder nicht beschreibbar</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Bitte eine Datei auswählen</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Remove the copy now</source>
        <translation>Kopie jetzt entfernen</translation>
    </message>
    <message>
        <source>Its file is missing in the safe</source>
        <translation>Seine Datei fehlt im Tresor</translation>
    </message>
    <message>
        <source>%1 · encrypted</source>
        <translation>%1 · verschlüsselt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t attach.</source>
        <translation>Anhängen nicht möglich.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t read the attachment.</source>
        <translation>Der Anhang lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The file of %1 in the safe is missing or damaged. A backup may hold it undamaged.</source>
        <translation>Die Datei von %1 im Tresor fehlt oder ist beschädigt. Eine Sicherung enthält sie vielleicht noch unbeschädigt.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Can&apos;t save the attachment.</source>
        <translation>Der Anhang lässt sich nicht speichern.</translation>
    </message>
    <message>
        <source>%1 could not be written. Check the free space and the permissions there, or choose another place.</source>
        <translation>%1 konnte nicht geschrieben werden. Prüfen Sie dort den freien Platz und die Rechte, oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
    <message>
        <source>%1 is a program, or can run one. It can be saved and looked at there.</source>
        <translation>%1 ist ein Programm oder kann eines starten. Sie können es speichern und dort ansehen.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Can&apos;t open the attachment.</source>
        <translation>Der Anhang lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>No private copy of %1 could be made. Check the free space, and whether the preview shows it.</source>
        <translation>Von %1 konnte keine private Kopie angelegt werden. Prüfen Sie den freien Platz, und ob die Vorschau es zeigt.</translation>
    </message>
    <message>
        <source>No program was found that opens %1. It can be saved instead.</source>
        <translation>Es wurde kein Programm gefunden, das %1 öffnet. Sie können es stattdessen speichern.</translation>
    </message>
    <message>
        <source>“%1” is open in another program.</source>
        <translation>„%1“ ist in einem anderen Programm geöffnet.</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation>
            <numerusform>%n Anhang ist in einem anderen Programm geöffnet.</numerusform>
            <numerusform>%n Anhänge sind in anderen Programmen geöffnet.</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy lies readable in a private folder until the safe locks. It can not be written to: changes made there are not taken back into the safe. Save them under another name and attach that file.</source>
        <translation>Bis der Tresor gesperrt wird, liegt eine lesbare Kopie in einem privaten Ordner. Sie ist schreibgeschützt: Änderungen daran gelangen nicht in den Tresor zurück. Speichern Sie sie unter anderem Namen und hängen Sie jene Datei an.</translation>
    </message>
    <message>
        <source>Can&apos;t remove the copy.</source>
        <translation>Die Kopie lässt sich nicht entfernen.</translation>
    </message>
    <message>
        <source>Another program may still hold it open. It is tried again when the safe locks.</source>
        <translation>Vielleicht hält ein anderes Programm sie noch offen. Beim Sperren des Tresors wird es erneut versucht.</translation>
    </message>
</context>
<context>
    <name>AttachmentInput</name>
    <message>
        <source>Picture %1.png</source>
        <translation>Bild %1.png</translation>
    </message>
</context>
<context>
    <name>AttachmentPreview</name>
    <message>
        <source>There is no preview for this kind of file.</source>
        <translation>Für diese Art von Datei gibt es keine Vorschau.</translation>
    </message>
    <message>
        <source>This is the beginning; save the file to see all of it.</source>
        <translation>Das ist der Anfang; speichern Sie die Datei, um alles zu sehen.</translation>
    </message>
    <message>
        <source>Letters of one width</source>
        <translation>Feste Zeichenbreite</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>In anderem Programm öffnen</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
</context>
<context>
    <name>AttachmentRow</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 anzeigen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>In anderem Programm öffnen</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
</context>
<context>
    <name>AttachmentsCard</name>
    <message>
        <source>Attach files…</source>
        <translation>Dateien anhängen …</translation>
    </message>
    <message>
        <source>Files and pictures can also be dropped here, or pasted with Ctrl+V</source>
        <translation>Dateien und Bilder lassen sich auch hierher ziehen oder mit Strg+V einfügen</translation>
    </message>
    <message>
        <source>Being encrypted…</source>
        <translation>Wird verschlüsselt …</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Bitte eine Datei auswählen</translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation>Zum Anhängen loslassen</translation>
    </message>
</context>
<context>
    <name>BackupRow</name>
    <message>
        <source>Restore from a backup…</source>
        <translation>Aus einer Sicherung wiederherstellen …</translation>
    </message>
    <message>
        <source>Backing up</source>
        <translation>Sicherung läuft</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>There is no safe to back up yet.</source>
        <translation>Es gibt noch keinen Tresor zum Sichern.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Wird gesichert …</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Sicherungen werden gelesen …</translation>
    </message>
    <message>
        <source>You can go on working.</source>
        <translation>Sie können weiterarbeiten.</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>a day, a time of day</comment>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Damaged, can&apos;t be restored · %1</source>
        <translation>Beschädigt, nicht wiederherstellbar · %1</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Letzte Sicherung: %1</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Noch keine Sicherung</translation>
    </message>
    <message>
        <source>Automatic backups are off.</source>
        <translation>Automatische Sicherungen sind aus.</translation>
    </message>
    <message>
        <source>Next backup: in a moment</source>
        <translation>Nächste Sicherung: gleich</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Nächste Sicherung: %1</translation>
    </message>
    <message>
        <source>The folder for backups is not there. Connect its drive, or choose another folder.</source>
        <translation>Der Ordner für Sicherungen ist nicht da. Schließen Sie das Laufwerk an oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The folder for backups can&apos;t be written to. Choose another folder.</source>
        <translation>In den Ordner für Sicherungen lässt sich nicht schreiben. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>%1: not there, or it can&apos;t be read</source>
        <translation>%1: nicht da oder nicht lesbar</translation>
    </message>
    <message>
        <source>%1: not backed up yet</source>
        <translation>%1: noch nicht gesichert</translation>
    </message>
    <message>
        <source>%1: %2, unchanged since</source>
        <translation>%1: %2, seither unverändert</translation>
    </message>
    <message>
        <source>%1: %2, changed since</source>
        <translation>%1: %2, seither geändert</translation>
    </message>
    <message>
        <source>Backed up and checked: %1.</source>
        <translation>Gesichert und geprüft: %1.</translation>
    </message>
    <message>
        <source>Unchanged since the last backup: %1.</source>
        <translation>Unverändert seit der letzten Sicherung: %1.</translation>
    </message>
    <message>
        <source>Not backed up, as the folder is not there: %1. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Nicht gesichert, weil der Ordner nicht da ist: %1. Liegt er auf einem Wechseldatenträger, schließen Sie ihn an und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Not yet backed up, as the password is being changed or it is being archived: %1. This is tried again in a minute.</source>
        <translation>Noch nicht gesichert, weil gerade das Passwort geändert oder ein Archiv geschrieben wird: %1. In einer Minute wird es wieder versucht.</translation>
    </message>
    <message>
        <source>Cancelled: %1. Earlier backups are left as they are.</source>
        <translation>Abgebrochen: %1. Frühere Sicherungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Not backed up: “%1”. %2</source>
        <translation>Nicht gesichert: „%1“. %2</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>1 item could not be read</source>
        <translation>1 Eintrag konnte nicht gelesen werden</translation>
    </message>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation>
            <numerusform>%n Eintrag konnte nicht gelesen werden</numerusform>
            <numerusform>%n Einträge konnten nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation>
            <numerusform>und %n weiterer im selben Ordner</numerusform>
            <numerusform>und %n weitere im selben Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>Their files were left as they are. A backup may hold them undamaged:
%1</source>
        <translation>Ihre Dateien blieben unverändert. Eine Sicherung enthält sie vielleicht unbeschädigt:
%1</translation>
    </message>
</context>
<context>
    <name>BusSessionWatch</name>
    <message>
        <source>Locking the safe</source>
        <translation>Tresor sperren</translation>
    </message>
</context>
<context>
    <name>CapsIndicator</name>
    <message>
        <source>CAPS ON</source>
        <translation>CAPS AN</translation>
    </message>
    <message>
        <source>CAPS OFF</source>
        <translation>CAPS AUS</translation>
    </message>
</context>
<context>
    <name>CardFace</name>
    <message>
        <source>Click to copy</source>
        <translation>Zum Kopieren klicken</translation>
    </message>
</context>
<context>
    <name>CategoryListView</name>
    <message>
        <source>Restore all</source>
        <translation>Alle wiederherstellen</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
</context>
<context>
    <name>CategoryModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ChangePasswordDialog</name>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Only you know it. It cannot be recovered.</source>
        <translation>Nur Sie kennen es. Es lässt sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Old password:</source>
        <translation>Altes Passwort:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Neues Passwort:</translation>
    </message>
    <message>
        <source>Confirm:</source>
        <translation>Bestätigen:</translation>
    </message>
    <message>
        <source>Hint:</source>
        <translation>Merkhilfe:</translation>
    </message>
</context>
<context>
    <name>ChangePasswordRules</name>
    <message>
        <source>Old password can not be empty</source>
        <translation>Das alte Passwort darf nicht leer sein</translation>
    </message>
    <message>
        <source>Old password is invalid. Try again</source>
        <translation>Das alte Passwort ist falsch. Versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>New password can not be empty</source>
        <translation>Das neue Passwort darf nicht leer sein</translation>
    </message>
    <message>
        <source>New password can not be the same as the old password</source>
        <translation>Das neue Passwort darf nicht das alte sein</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>Die Bestätigung darf nicht leer sein</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>Die Merkhilfe darf nicht leer sein</translation>
    </message>
    <message>
        <source>“%1” has its new password. From now on only that one opens it. Backups made before still open with the old one.</source>
        <translation>„%1“ hat sein neues Passwort. Ab jetzt öffnet ihn nur dieses. Frühere Sicherungen öffnen sich weiter mit dem alten.</translation>
    </message>
    <message>
        <source>The password was not changed. The old one still opens “%1”.</source>
        <translation>Das Passwort wurde nicht geändert. „%1“ öffnet sich weiter mit dem alten.</translation>
    </message>
    <message>
        <source>“%1” was locked before the change was done. The old password still opens it.</source>
        <translation>„%1“ wurde gesperrt, bevor die Änderung fertig war. Er öffnet sich weiter mit dem alten Passwort.</translation>
    </message>
    <message>
        <source>The password was not changed: another program is using the safe. The old one still opens it. Wait until the other program is done, then try again.</source>
        <translation>Das Passwort wurde nicht geändert: Ein anderes Programm benutzt den Tresor. Er öffnet sich weiter mit dem alten. Warten Sie, bis das andere Programm fertig ist, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The password was not changed: some files of the safe do not open, and under a new password they would be lost. The old one still opens the safe. Bring these files back from a backup or move them out of the folder of the safe, then try again.</source>
        <translation>Das Passwort wurde nicht geändert: Einige Dateien des Tresors lassen sich nicht öffnen und gingen mit einem neuen Passwort verloren. Er öffnet sich weiter mit dem alten. Holen Sie diese Dateien aus einer Sicherung zurück oder verschieben Sie sie aus dem Ordner des Tresors, dann versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The password was not changed: the files of the safe could not be written. The old one still opens it. Check the free space and that the folder of the safe can be written to, then try again.</source>
        <translation>Das Passwort wurde nicht geändert: Die Dateien des Tresors ließen sich nicht schreiben. Er öffnet sich weiter mit dem alten. Prüfen Sie den freien Platz und ob der Ordner beschreibbar ist, dann versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens the safe, but perhaps not every item; this old one still opens them all.</source>
        <translation>Eine Änderung des Passworts von „%1“ wurde unterbrochen. Das neue Passwort öffnet den Tresor, aber vielleicht nicht jeden Eintrag; dieses alte öffnet noch alle.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens %2 of %3 items; the old one still opens those that were there before. Change nothing now: it would be missing when you go back.</source>
        <translation>Eine Änderung des Passworts von „%1“ wurde unterbrochen. Das neue Passwort öffnet %2 von %3 Einträgen; das alte öffnet noch die, die vorher da waren. Ändern Sie jetzt nichts: Es würde fehlen, wenn Sie zurückkehren.</translation>
    </message>
    <message>
        <source>To go back to the old password, quit the program and open the folder of the safe. Keep a copy of “safe.passid” in another place. Then copy “safe.passid.bak” over “safe.passid”: every item opens with the old password again, and you can change it anew.</source>
        <translation>Um zum alten Passwort zurückzukehren, beenden Sie das Programm und öffnen Sie den Ordner des Tresors. Heben Sie eine Kopie von „safe.passid“ an einem anderen Ort auf. Kopieren Sie dann „safe.passid.bak“ über „safe.passid“: Jeder Eintrag öffnet sich wieder mit dem alten Passwort, und Sie können es neu ändern.</translation>
    </message>
    <message>
        <source>The change of the password was stopped before it was done, as “%1” had to be saved at once. The old password still opens it. You can change it anew.</source>
        <translation>Die Änderung des Passworts wurde vor dem Ende angehalten, weil „%1“ sofort gespeichert werden musste. Das alte Passwort öffnet ihn weiter. Sie können es neu ändern.</translation>
    </message>
    <message>
        <source>This new password was not taken: another change of the password is still under way. Wait until it is done, then try again.</source>
        <translation>Dieses neue Passwort wurde nicht übernommen: Eine andere Änderung des Passworts läuft noch. Warten Sie, bis sie fertig ist, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>Die Merkhilfe verrät das Passwort</translation>
    </message>
</context>
<context>
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Keine Angabe</translation>
    </message>
</context>
<context>
    <name>CloudDesk</name>
    <message>
        <source>The copy in the cloud folder is still there.</source>
        <translation>Die Kopie im Cloud-Ordner ist noch da.</translation>
    </message>
    <message>
        <source>Some of its files could not be removed. Remove the folder yourself if you do not need it:
%1</source>
        <translation>Einige ihrer Dateien ließen sich nicht entfernen. Entfernen Sie den Ordner selbst, wenn Sie ihn nicht brauchen:
%1</translation>
    </message>
    <message>
        <source>From the cloud folder</source>
        <translation>Aus dem Cloud-Ordner</translation>
    </message>
    <message>
        <source>Bringing “%1” over…</source>
        <translation>„%1“ wird geholt …</translation>
    </message>
    <message>
        <source>“%1” is on this computer now, and is kept the same as on your other computers. It opens with its own master password.</source>
        <translation>„%1“ ist jetzt auf diesem Computer und bleibt gleich mit Ihren anderen Computern. Er öffnet sich mit seinem eigenen Masterpasswort.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise with the cloud folder.</source>
        <translation>Synchronisieren mit dem Cloud-Ordner nicht möglich.</translation>
    </message>
</context>
<context>
    <name>CloudImportDialog</name>
    <message>
        <source>From the cloud folder</source>
        <translation>Aus dem Cloud-Ordner</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Bring over</source>
        <translation>Holen</translation>
    </message>
    <message>
        <source>Safes in the cloud folder</source>
        <translation>Tresore im Cloud-Ordner</translation>
    </message>
    <message>
        <source>No other safe found</source>
        <translation>Kein anderer Tresor gefunden</translation>
    </message>
    <message>
        <source>Safes that you synchronise on another computer appear here as soon as your cloud program has brought them.</source>
        <translation>Tresore, die Sie auf einem anderen Computer synchronisieren, erscheinen hier, sobald Ihr Cloud-Programm sie gebracht hat.</translation>
    </message>
    <message>
        <source>These safes are synchronised by another computer. Bring one over to use it here, too; it opens with its own master password.</source>
        <translation>Diese Tresore synchronisiert ein anderer Computer. Holen Sie einen, um ihn auch hier zu benutzen; er öffnet sich mit seinem eigenen Masterpasswort.</translation>
    </message>
    <message>
        <source>%1
made on %2</source>
        <translation>%1
angelegt am %2</translation>
    </message>
</context>
<context>
    <name>CloudOffer</name>
    <message>
        <source>Bring it over…</source>
        <translation>Holen …</translation>
    </message>
    <message>
        <source>You have a safe in your cloud folder: “%1”.</source>
        <translation>In Ihrem Cloud-Ordner liegt ein Tresor: „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n safes in your cloud folder.</source>
        <translation>
            <numerusform>In Ihrem Cloud-Ordner liegt ein Tresor.</numerusform>
            <numerusform>In Ihrem Cloud-Ordner liegen %n Tresore.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloudPanel</name>
    <message>
        <source>No folder of a cloud provider was found. Choose the one that yours keeps the same on all computers, or a folder on a USB stick.</source>
        <translation>Kein Ordner eines Cloud-Anbieters gefunden. Wählen Sie den, den Ihrer auf allen Computern gleich hält, oder einen Ordner auf einem USB-Stick.</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>There is no safe yet.</source>
        <translation>Es gibt noch keinen Tresor.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Cloud-Ordner</translation>
    </message>
    <message>
        <source>A synchronised safe has an encrypted copy in a folder that your cloud provider carries to your other computers. What you change on one arrives on all.</source>
        <translation>Ein synchronisierter Tresor hat eine verschlüsselte Kopie in einem Ordner, den Ihr Cloud-Anbieter zu Ihren anderen Computern bringt. Was Sie auf einem ändern, kommt auf allen an.</translation>
    </message>
    <message>
        <source>Personal account: %1</source>
        <translation>Privates Konto: %1</translation>
    </message>
    <message>
        <source>Business account: %1</source>
        <translation>Geschäftliches Konto: %1</translation>
    </message>
    <message>
        <source>Bring over “%1”…</source>
        <translation>„%1“ holen …</translation>
    </message>
    <message>
        <source>Bring over a safe (%1)…</source>
        <translation>Einen Tresor holen (%1) …</translation>
    </message>
    <message>
        <source>Choose a folder first.</source>
        <translation>Wählen Sie zuerst einen Ordner.</translation>
    </message>
    <message>
        <source>Stop synchronising “%1”?</source>
        <translation>„%1“ nicht mehr synchronisieren?</translation>
    </message>
    <message>
        <source>The safe on this computer stays as it is. Its copy in the cloud folder can stay for your other computers, or be removed; then they can&apos;t synchronise any more.</source>
        <translation>Der Tresor auf diesem Computer bleibt, wie er ist. Seine Kopie im Cloud-Ordner kann für Ihre anderen Computer bleiben oder entfernt werden; dann können sie nicht mehr synchronisieren.</translation>
    </message>
    <message>
        <source>Keep the copy</source>
        <translation>Kopie behalten</translation>
    </message>
    <message>
        <source>Remove the copy</source>
        <translation>Kopie entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CloudPasswordDialog</name>
    <message>
        <source>New master password</source>
        <translation>Neues Masterpasswort</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Go on with it</source>
        <translation>Damit weitermachen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The password of “%1” was changed on another computer. Enter the new one to go on synchronising; from then on the safe opens with it here, too.</source>
        <translation>Das Passwort von „%1“ wurde auf einem anderen Computer geändert. Geben Sie das neue ein, um weiter zu synchronisieren; ab dann öffnet sich der Tresor auch hier damit.</translation>
    </message>
</context>
<context>
    <name>CloudSafeRow</name>
    <message>
        <source>Synchronise now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Enter the new password…</source>
        <translation>Neues Passwort eingeben …</translation>
    </message>
    <message>
        <source>Synchronise “%1”</source>
        <translation>„%1“ synchronisieren</translation>
    </message>
    <message>
        <source>Only on this computer</source>
        <translation>Nur auf diesem Computer</translation>
    </message>
</context>
<context>
    <name>CloudTexts</name>
    <message>
        <source>Synchronised</source>
        <translation>Synchronisiert</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Synchronisiert …</translation>
    </message>
    <message>
        <source>Waiting for files</source>
        <translation>Wartet auf Dateien</translation>
    </message>
    <message>
        <source>Waiting…</source>
        <translation>Wartet …</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>No cloud folder</source>
        <translation>Kein Cloud-Ordner</translation>
    </message>
    <message>
        <source>Wrong folder</source>
        <translation>Falscher Ordner</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise</source>
        <translation>Nicht synchronisiert</translation>
    </message>
    <message>
        <source>Synchronised %1</source>
        <translation>Synchronisiert: %1</translation>
    </message>
    <message>
        <source>Synchronises when the safe is open</source>
        <translation>Synchronisiert, wenn der Tresor offen ist</translation>
    </message>
    <message>
        <source>Synchronising, %1 of %2</source>
        <translation>Synchronisiert, %1 von %2</translation>
    </message>
    <message>
        <source>Waiting for files to arrive</source>
        <translation>Wartet, bis Dateien ankommen</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n files to arrive</source>
        <translation>
            <numerusform>Wartet, bis eine Datei ankommt</numerusform>
            <numerusform>Wartet, bis %n Dateien ankommen</numerusform>
        </translation>
    </message>
    <message>
        <source>Waits until the safe is free</source>
        <translation>Wartet, bis der Tresor frei ist</translation>
    </message>
    <message>
        <source>The password was changed on another computer</source>
        <translation>Das Passwort wurde auf einem anderen Computer geändert</translation>
    </message>
    <message>
        <source>The cloud folder is not there</source>
        <translation>Der Cloud-Ordner ist nicht da</translation>
    </message>
    <message>
        <source>The cloud folder holds another safe</source>
        <translation>Der Cloud-Ordner enthält einen anderen Tresor</translation>
    </message>
    <message>
        <source>The cloud folder can&apos;t be written to</source>
        <translation>In den Cloud-Ordner lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>The folder of the safe can&apos;t be written to</source>
        <translation>In den Ordner des Tresors lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them.</source>
        <translation>Es geht von selbst weiter, sobald Ihr Cloud-Programm sie gebracht hat.</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them: %1</source>
        <translation>Es geht von selbst weiter, sobald Ihr Cloud-Programm sie gebracht hat: %1</translation>
    </message>
    <message>
        <source>The safe is being archived, or its password is being changed.</source>
        <translation>Der Tresor wird gerade archiviert, oder sein Passwort wird geändert.</translation>
    </message>
    <message>
        <source>Enter the new password, and this computer goes on with it.</source>
        <translation>Geben Sie das neue Passwort ein, dann macht dieser Computer damit weiter.</translation>
    </message>
    <message>
        <source>If it is on a drive that can be taken out, connect the drive. If it was moved, turn synchronising off and on again. Nothing is lost in the meantime.
%1</source>
        <translation>Liegt er auf einem Wechseldatenträger, schließen Sie diesen an. Wurde er verschoben, schalten Sie das Synchronisieren aus und wieder ein. Inzwischen geht nichts verloren.
%1</translation>
    </message>
    <message>
        <source>Nothing was read or changed there. Turn synchronising off and on again to choose another folder.
%1</source>
        <translation>Dort wurde nichts gelesen oder geändert. Schalten Sie das Synchronisieren aus und wieder ein, um einen anderen Ordner zu wählen.
%1</translation>
    </message>
    <message>
        <source>Your changes are in the safe on this computer, but not in the cloud folder. Check the free space and that you may write there; it is tried again every minute.
%1</source>
        <translation>Ihre Änderungen sind im Tresor auf diesem Computer, aber nicht im Cloud-Ordner. Prüfen Sie den freien Platz und ob Sie dort schreiben dürfen; jede Minute wird es wieder versucht.
%1</translation>
    </message>
    <message>
        <source>Changes of your other computers could not be taken over. Check the free space and that you may write to the folder of the safe; it is tried again every minute.</source>
        <translation>Änderungen Ihrer anderen Computer konnten nicht übernommen werden. Prüfen Sie den freien Platz und ob Sie in den Ordner des Tresors schreiben dürfen; jede Minute wird es wieder versucht.</translation>
    </message>
    <message>
        <source>This folder is not there: %1</source>
        <translation>Dieser Ordner ist nicht da: %1</translation>
    </message>
    <message>
        <source>This folder is part of the safe itself. Choose the folder of your cloud provider, or one on another drive.</source>
        <translation>Dieser Ordner gehört zum Tresor selbst. Wählen Sie den Ordner Ihres Cloud-Anbieters oder einen auf einem anderen Laufwerk.</translation>
    </message>
    <message>
        <source>The safe itself lies in this folder. Choose a folder that does not hold it.</source>
        <translation>Der Tresor selbst liegt in diesem Ordner. Wählen Sie einen Ordner, der ihn nicht enthält.</translation>
    </message>
    <message>
        <source>Your backups are kept in this folder. Choose another one.</source>
        <translation>In diesem Ordner liegen Ihre Sicherungen. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>This folder belongs to another safe. Choose another one.</source>
        <translation>Dieser Ordner gehört zu einem anderen Tresor. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>This folder belongs to the safe “%1”. Choose another one.</source>
        <translation>Dieser Ordner gehört zum Tresor „%1“. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Another copy of this safe on this computer is synchronised there already. Turn that off first, or choose another folder.</source>
        <translation>Eine andere Kopie dieses Tresors auf diesem Computer wird dort schon synchronisiert. Schalten Sie das zuerst aus oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be written to. Check the free space and that you may write there: %1</source>
        <translation>In diesen Ordner lässt sich nicht schreiben. Prüfen Sie den freien Platz und ob Sie dort schreiben dürfen: %1</translation>
    </message>
    <message>
        <source>This is not the password that was set on the other computer. Try again.</source>
        <translation>Das ist nicht das Passwort, das auf dem anderen Computer gesetzt wurde. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The safe is busy with something else, such as a backup. Try again in a moment.</source>
        <translation>Der Tresor ist mit etwas anderem beschäftigt, etwa einer Sicherung. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The safe on this computer could not be changed; it is as it was. Check the free space, and that every item of the safe can be read, then try again.</source>
        <translation>Der Tresor auf diesem Computer konnte nicht geändert werden; er ist, wie er war. Prüfen Sie den freien Platz und ob jeder Eintrag lesbar ist, dann versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Der Tresor lässt sich nicht schreiben. Prüfen Sie den freien Platz und ob Sie in den Ordner Ihrer Tresore schreiben dürfen.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Gerade wird ein anderer Tresor importiert. Versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>The safe in the cloud folder can&apos;t be read. It may not have arrived whole yet; wait until your cloud program is done, and try again.</source>
        <translation>Der Tresor im Cloud-Ordner lässt sich nicht lesen. Vielleicht ist er noch nicht ganz angekommen; warten Sie, bis Ihr Cloud-Programm fertig ist, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>One item came from the cloud folder</source>
        <translation>Ein Eintrag kam aus dem Cloud-Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%n items came from the cloud folder</source>
        <translation>
            <numerusform>%n Eintrag kam aus dem Cloud-Ordner</numerusform>
            <numerusform>%n Einträge kamen aus dem Cloud-Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was deleted on another computer</source>
        <translation>Ein Eintrag wurde auf einem anderen Computer gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>%n items were deleted on another computer</source>
        <translation>
            <numerusform>%n Eintrag wurde auf einem anderen Computer gelöscht</numerusform>
            <numerusform>%n Einträge wurden auf einem anderen Computer gelöscht</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyNotice</name>
    <message>
        <source>Value copied to clipboard</source>
        <translation>Wert in die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>clears in %1 s</source>
        <translation>wird in %1 s gelöscht</translation>
    </message>
</context>
<context>
    <name>CountryField</name>
    <message>
        <source>%1  +%2</source>
        <extracomment>a country and its dialling code</extracomment>
        <translation>%1  +%2</translation>
    </message>
    <message>
        <source>Show all countries</source>
        <translation>Alle Länder zeigen</translation>
    </message>
    <message>
        <source>Show all countries (Alt+Down)</source>
        <translation>Alle Länder zeigen (Alt+Abwärts)</translation>
    </message>
</context>
<context>
    <name>CreateSafeForm</name>
    <message>
        <source>New Safe name</source>
        <translation>Name des neuen Tresors</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Merkhilfe</translation>
    </message>
    <message>
        <source>Create safe failed!</source>
        <translation>Der Tresor konnte nicht angelegt werden!</translation>
    </message>
    <message>
        <source>A safe needs an empty folder that you may write to. This one is not:
%1</source>
        <translation>Ein Tresor braucht einen leeren Ordner, in den Sie schreiben dürfen. Dieser ist es nicht:
%1</translation>
    </message>
</context>
<context>
    <name>CreateSafePage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Tresor anlegen</translation>
    </message>
    <message>
        <source>Only you know its password. It cannot be recovered.</source>
        <translation>Nur Sie kennen sein Passwort. Es lässt sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Sie haben noch keinen Tresor.
Einen anlegen?</translation>
    </message>
    <message>
        <source>Create
another one?</source>
        <translation>Noch einen
anlegen?</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Aus einer Sicherung wiederherstellen …</translation>
    </message>
    <message>
        <source>Import from an archive…</source>
        <translation>Aus einem Archiv importieren …</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>Kept with your other safes</source>
        <translation>Bei Ihren anderen Tresoren</translation>
    </message>
    <message>
        <source>Usual place</source>
        <translation>Üblicher Ort</translation>
    </message>
    <message>
        <source>Keep the safe in the usual place</source>
        <translation>Den Tresor am üblichen Ort anlegen</translation>
    </message>
    <message>
        <source>Choose the folder of the safe…</source>
        <translation>Ordner des Tresors wählen …</translation>
    </message>
</context>
<context>
    <name>CreateSafeRules</name>
    <message>
        <source>Safe name can not be empty</source>
        <translation>Der Name des Tresors darf nicht leer sein</translation>
    </message>
    <message>
        <source>Password can not be empty</source>
        <translation>Das Passwort darf nicht leer sein</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>Die Wiederholung darf nicht leer sein</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>Die Merkhilfe darf nicht leer sein</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>Die Merkhilfe verrät das Passwort</translation>
    </message>
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
</context>
<context>
    <name>DeleteSafeDialog</name>
    <message>
        <source>Delete safe</source>
        <translation>Tresor löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>„%1“ endgültig löschen?</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups stay.</source>
        <translation>Alles darin verschwindet von diesem Computer. Seine Sicherungen bleiben.</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups and its copy in the cloud folder stay.</source>
        <translation>Alles darin verschwindet von diesem Computer. Seine Sicherungen und die Kopie im Cloud-Ordner bleiben.</translation>
    </message>
    <message>
        <source>Master password of this safe</source>
        <translation>Masterpasswort dieses Tresors</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Falsches Passwort! Versuchen Sie es noch einmal</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>Can&apos;t keep the edit.</source>
        <translation>Die Eingabe kann nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>What you were typing could not be kept, as its file could not be written. Check the free space and the permissions of the program&apos;s data folder.</source>
        <translation>Was Sie eingegeben haben, konnte nicht aufbewahrt werden, weil die Datei nicht geschrieben werden konnte. Prüfen Sie den freien Platz und die Rechte am Datenordner des Programms.</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>an item without a title</source>
        <translation>einen Eintrag ohne Titel</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>You were adding %1 when the safe locked.</source>
        <translation>Sie waren dabei, %1 anzulegen, als der Tresor gesperrt wurde.</translation>
    </message>
    <message>
        <source>You were editing %1 when the safe locked.</source>
        <translation>Sie waren dabei, %1 zu bearbeiten, als der Tresor gesperrt wurde.</translation>
    </message>
    <message>
        <source>What you had typed was kept, encrypted, and is not saved yet.</source>
        <translation>Ihre Eingaben wurden verschlüsselt aufbewahrt und sind noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>The item was deleted meanwhile. What you had typed can become a new item.</source>
        <translation>Der Eintrag wurde inzwischen gelöscht. Aus Ihren Eingaben kann ein neuer Eintrag werden.</translation>
    </message>
    <message>
        <source>The item is in the trash now. What you had typed was kept.</source>
        <translation>Der Eintrag liegt jetzt im Papierkorb. Ihre Eingaben wurden aufbewahrt.</translation>
    </message>
    <message>
        <source>The item was changed meanwhile. What you had typed was kept.</source>
        <translation>Der Eintrag wurde inzwischen geändert. Ihre Eingaben wurden aufbewahrt.</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>An edit that was kept could not be read.</source>
        <translation>Eine aufbewahrte Eingabe konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Its file is damaged or belongs to another password, and was left as it is:
%1</source>
        <translation>Ihre Datei ist beschädigt oder gehört zu einem anderen Passwort und blieb unverändert:
%1</translation>
    </message>
    <message>
        <source>%1 is in the trash. What would you like to do with what you had typed?</source>
        <translation>%1 liegt im Papierkorb. Was soll mit Ihren Eingaben geschehen?</translation>
    </message>
    <message>
        <source>%1 was changed after you had begun. What would you like to do with what you had typed?</source>
        <translation>%1 wurde geändert, nachdem Sie begonnen hatten. Was soll mit Ihren Eingaben geschehen?</translation>
    </message>
    <message>
        <source>Continue as a new item</source>
        <translation>Als neuen Eintrag fortsetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace the change</source>
        <translation>Änderung ersetzen</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Do you want to discard what you had typed about %1?
It can not be restored.</source>
        <translation>Möchten Sie Ihre Eingaben zu %1 verwerfen?
Sie lassen sich nicht wiederherstellen.</translation>
    </message>
</context>
<context>
    <name>ExcludedSitesPanel</name>
    <message>
        <source>None. “Never for this site” puts one here.</source>
        <translation>Keine. „Nie für diese Website“ trägt hier eine ein.</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Wieder fragen</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Websites ohne Angebot</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Logins, die Sie dort eingeben, werden nicht zum Speichern angeboten.</translation>
    </message>
    <message>
        <source>The list could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>Die Liste konnte nicht geschrieben werden. Prüfen Sie den freien Platz und die Rechte des Einstellungsordners.</translation>
    </message>
</context>
<context>
    <name>ExpiryText</name>
    <message>
        <source>Expired</source>
        <translation>Abgelaufen</translation>
    </message>
    <message>
        <source>Expires today</source>
        <translation>Läuft heute ab</translation>
    </message>
    <message>
        <source>Expires in 1 day</source>
        <translation>Läuft in 1 Tag ab</translation>
    </message>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation>
            <numerusform>Läuft in %n Tag ab</numerusform>
            <numerusform>Läuft in %n Tagen ab</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The folder of the safe is not there. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Der Ordner des Tresors ist nicht da. Liegt er auf einem Wechsellaufwerk, schließen Sie es an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no safe in the folder any more.</source>
        <translation>In dem Ordner ist kein Tresor mehr.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed, or it is being archived already. Try again when that is done.</source>
        <translation>Das Passwort des Tresors wird gerade geändert, oder er wird schon archiviert. Versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>Some of the safe&apos;s files can&apos;t be read. Check that its folder is there and that you may read and write it.</source>
        <translation>Einige Dateien des Tresors sind nicht lesbar. Prüfen Sie, ob sein Ordner da ist und Sie ihn lesen und beschreiben dürfen.</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written. Check the free space and that you may write to its folder, or choose another one.</source>
        <translation>Das Archiv kann nicht geschrieben werden. Prüfen Sie den freien Platz und ob Sie in seinen Ordner schreiben dürfen, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The safe holds more than the 4 GiB that fit into an archive. Copy its folder instead, or take out large attachments.</source>
        <translation>Der Tresor enthält mehr als die 4 GiB, die in ein Archiv passen. Kopieren Sie stattdessen seinen Ordner, oder entfernen Sie große Anhänge.</translation>
    </message>
    <message>
        <source>The archive could not be read back after it was written, and was removed. Choose a folder on another drive.</source>
        <translation>Das Archiv ließ sich nach dem Schreiben nicht lesen und wurde entfernt. Wählen Sie einen Ordner auf einem anderen Laufwerk.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</source>
        <translation>
            <numerusform>Ein Eintrag steht jetzt in „%1“. Wer die Datei öffnet, kann ihn lesen: Löschen Sie sie nach Gebrauch.</numerusform>
            <numerusform>%n Einträge stehen jetzt in „%1“. Wer die Datei öffnet, kann sie lesen: Löschen Sie sie nach Gebrauch.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file cannot be written, and nothing of it is left. Check the free space and the permissions, or choose another folder:
%1</source>
        <translation>Die Datei lässt sich nicht schreiben, und nichts von ihr ist geblieben. Prüfen Sie freien Platz und Rechte oder wählen Sie einen anderen Ordner:
%1</translation>
    </message>
    <message>
        <source>The safe was locked before the file was written. Nothing of it is left.</source>
        <translation>Der Tresor wurde gesperrt, bevor die Datei geschrieben war. Nichts von ihr ist geblieben.</translation>
    </message>
    <message>
        <source>Export items</source>
        <translation>Einträge exportieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected items</source>
        <translation>
            <numerusform>Der ausgewählte Eintrag</numerusform>
            <numerusform>Die %n ausgewählten Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>All items of the safe (%1)</source>
        <translation>Alle Einträge des Tresors (%1)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>JSON: everything, for another safe</source>
        <translation>JSON: alles, für einen anderen Tresor</translation>
    </message>
    <message>
        <source>CSV: logins, for browsers and other programs</source>
        <translation>CSV: Logins, für Browser und andere Programme</translation>
    </message>
    <message>
        <source>Password of the safe</source>
        <translation>Passwort des Tresors</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Password of the safe “%1”</source>
        <translation>Passwort des Tresors „%1“</translation>
    </message>
    <message>
        <source>The file is not encrypted: everyone who gets hold of it can read your passwords. Do not leave it lying, nor in a folder that is synchronised, and delete it as soon as it has served.</source>
        <translation>Die Datei ist nicht verschlüsselt: Wer sie in die Hand bekommt, kann Ihre Passwörter lesen. Lassen Sie sie nicht liegen, auch nicht in einem synchronisierten Ordner, und löschen Sie sie gleich nach Gebrauch.</translation>
    </message>
    <message numerus="yes">
        <source>%n items that are no logins are left out.</source>
        <translation>
            <numerusform>Ein Eintrag, der kein Login ist, wird ausgelassen.</numerusform>
            <numerusform>%n Einträge, die keine Logins sind, werden ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are left out. An archive of the safe holds them.</source>
        <translation>
            <numerusform>Ein Anhang wird ausgelassen. Ein Archiv des Tresors enthält ihn.</numerusform>
            <numerusform>%n Anhänge werden ausgelassen. Ein Archiv des Tresors enthält sie.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password of the safe.</source>
        <translation>Das ist nicht das Passwort des Tresors.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben …</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
</context>
<context>
    <name>ExtensionPage</name>
    <message>
        <source>You can install plugin later from application Settings window</source>
        <translation>Sie können die Erweiterung auch später in den Einstellungen installieren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>%1, hidden</source>
        <translation>%1, verborgen</translation>
    </message>
    <message>
        <source>View text under dots</source>
        <translation>Verborgenen Text anzeigen</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Copy to clipboard: %1</source>
        <translation>In die Zwischenablage kopieren: %1</translation>
    </message>
    <message>
        <source>Click to copy</source>
        <translation>Zum Kopieren klicken</translation>
    </message>
    <message>
        <source>Generate password</source>
        <translation>Passwort erzeugen</translation>
    </message>
    <message>
        <source>Change: %1</source>
        <translation>Ändern: %1</translation>
    </message>
</context>
<context>
    <name>FieldRules</name>
    <message>
        <source>Required field is empty</source>
        <translation>Dieses Feld muss ausgefüllt sein</translation>
    </message>
    <message>
        <source>Url is invalid</source>
        <translation>Die Adresse ist ungültig</translation>
    </message>
    <message>
        <source>Please use 4-digit value</source>
        <translation>Bitte 4 Ziffern eingeben</translation>
    </message>
    <message>
        <source>Please use 3-digit value</source>
        <translation>Bitte 3 Ziffern eingeben</translation>
    </message>
    <message>
        <source>Correct value is up to 26 characters in range A-Z including spaces</source>
        <translation>Richtig sind bis zu 26 Zeichen von A bis Z und Leerzeichen</translation>
    </message>
    <message>
        <source>Incorrect card number</source>
        <translation>Falsche Kartennummer</translation>
    </message>
    <message>
        <source>“%1” is not a complete address</source>
        <translation>„%1“ ist keine vollständige Adresse</translation>
    </message>
    <message>
        <source>“%1” is not a country code</source>
        <translation>„%1“ ist keine Landesvorwahl</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>“%1” is not a date</source>
        <translation>„%1“ ist kein Datum</translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message>
        <source>The same password as %1</source>
        <translation>Dasselbe Passwort wie %1</translation>
    </message>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation>
            <numerusform>Dasselbe Passwort wie %1 und %n weiterer</numerusform>
            <numerusform>Dasselbe Passwort wie %1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Nothing changed since %1</source>
        <translation>Unverändert seit %1</translation>
    </message>
    <message>
        <source>The address begins with http: others can read along</source>
        <translation>Die Adresse beginnt mit http: andere können mitlesen</translation>
    </message>
    <message>
        <source>Stop ignoring</source>
        <translation>Wieder beachten</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Change it…</source>
        <translation>Ändern …</translation>
    </message>
    <message>
        <source>Open the site&apos;s page for a new password</source>
        <translation>Die Passwortseite der Website öffnen</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Which language do you want to use?</source>
        <translation>Welche Sprache möchten Sie verwenden?</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Tresor anlegen</translation>
    </message>
    <message>
        <source>It keeps your passwords. Only you know its password, and it cannot be recovered.</source>
        <translation>Er bewahrt Ihre Passwörter auf. Nur Sie kennen sein Passwort, und es lässt sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Fill forms in your browser</source>
        <translation>Formulare im Browser ausfüllen</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Alles ist bereit</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>Das Programm wartet im Infobereich, wenn Sie sein Fenster schließen.</translation>
    </message>
    <message>
        <source>Bring your passwords over</source>
        <translation>Passwörter übernehmen</translation>
    </message>
    <message>
        <source>From a browser or another program. You can also do it later, in the menu of the safe.</source>
        <translation>Aus einem Browser oder einem anderen Programm. Das geht auch später, im Menü des Tresors.</translation>
    </message>
    <message>
        <source>Install plugin very fast and simple</source>
        <translation>Die Erweiterung ist schnell und einfach installiert</translation>
    </message>
</context>
<context>
    <name>FormFillFlow</name>
    <message>
        <source>Can&apos;t login.</source>
        <translation>Anmelden nicht möglich.</translation>
    </message>
    <message>
        <source>Item %1 has wrong url: %2</source>
        <translation>Eintrag %1 hat eine falsche Adresse: %2</translation>
    </message>
    <message>
        <source>No browser is connected</source>
        <translation>Kein Browser ist verbunden</translation>
    </message>
    <message>
        <source>To fill this into a page, open your browser with the extension.</source>
        <translation>Öffnen Sie Ihren Browser mit der Erweiterung, um dies in eine Seite einzufüllen.</translation>
    </message>
    <message>
        <source>Nothing to fill</source>
        <translation>Nichts auszufüllen</translation>
    </message>
    <message>
        <source>The page shows no empty fields for “%1”.</source>
        <translation>Die Seite zeigt keine leeren Felder für „%1“.</translation>
    </message>
    <message>
        <source>This page is not encrypted</source>
        <translation>Diese Seite ist nicht verschlüsselt</translation>
    </message>
    <message>
        <source>A card is filled into encrypted pages (https) alone.</source>
        <translation>Eine Karte wird nur in verschlüsselte Seiten (https) eingefüllt.</translation>
    </message>
    <message>
        <source>An identity is filled into encrypted pages (https) alone.</source>
        <translation>Eine Identität wird nur in verschlüsselte Seiten (https) eingefüllt.</translation>
    </message>
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Änderungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>These files could not be written; what they held before is still there. Check the free space and the permissions, then save again:
%1</source>
        <translation>Diese Dateien konnten nicht geschrieben werden; ihr bisheriger Inhalt ist noch da. Prüfen Sie den freien Platz und die Rechte, und speichern Sie dann erneut:
%1</translation>
    </message>
    <message>
        <source>Can&apos;t use the hotkey.</source>
        <translation>Die Tastenkombination ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Choose another combination in the settings, or end that program and start this one anew.</source>
        <translation>%1 wird von einem anderen Programm benutzt. Wählen Sie in den Einstellungen eine andere Kombination, oder beenden Sie jenes Programm und starten Sie dieses neu.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t back up.</source>
        <translation>Sichern nicht möglich.</translation>
    </message>
    <message>
        <source>%1

Earlier backups are left as they are, in:
%2</source>
        <translation>%1

Frühere Sicherungen bleiben, wie sie sind, in:
%2</translation>
    </message>
</context>
<context>
    <name>GeneratorPanel</name>
    <message>
        <source>Generated password</source>
        <translation>Erzeugtes Passwort</translation>
    </message>
    <message>
        <source>Another password</source>
        <translation>Anderes Passwort</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Special chars:</source>
        <translation>Sonderzeichen:</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation>Es gibt nichts, wo es eingesetzt werden kann.</translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation>Die Passwörter, die seit dem Öffnen des Tresors erzeugt wurden; beim Sperren werden sie gelöscht</translation>
    </message>
    <message>
        <source>Passwords are remembered only while a safe is open</source>
        <translation>Passwörter werden nur gemerkt, solange ein Tresor offen ist</translation>
    </message>
    <message>
        <source>Hidden password</source>
        <translation>Verborgenes Passwort</translation>
    </message>
    <message>
        <source>used</source>
        <translation>benutzt</translation>
    </message>
    <message>
        <source>Copy the password of %1</source>
        <translation>Passwort von %1 kopieren</translation>
    </message>
</context>
<context>
    <name>HealthDialog</name>
    <message>
        <source>Health</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Reused</source>
        <translation>Mehrfach benutzt</translation>
    </message>
    <message>
        <source>Older than 2 years</source>
        <translation>Älter als 2 Jahre</translation>
    </message>
    <message>
        <source>Not on https</source>
        <translation>Ohne https</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Läuft ab</translation>
    </message>
    <message>
        <source>Looking at the items…</source>
        <translation>Einträge werden geprüft …</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mehr anzeigen (%1)</translation>
    </message>
    <message>
        <source>Back to what is not ignored</source>
        <translation>Zurück zu den beachteten</translation>
    </message>
    <message>
        <source>Ignored (%1)</source>
        <translation>Ignoriert (%1)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Not all items have been looked at yet.</source>
        <translation>Noch sind nicht alle Einträge geprüft.</translation>
    </message>
</context>
<context>
    <name>HealthTile</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>HotkeyLineEdit</name>
    <message>
        <source>Press keys</source>
        <translation>Tasten drücken</translation>
    </message>
    <message>
        <source>Press a combination of keys; Backspace clears it</source>
        <translation>Eine Tastenkombination drücken; die Rücktaste löscht sie</translation>
    </message>
</context>
<context>
    <name>HotkeyRules</name>
    <message>
        <source>Use it together with Ctrl, Alt or Meta</source>
        <translation>Nur zusammen mit Strg, Alt oder Meta</translation>
    </message>
    <message>
        <source>%1 is taken by: %2</source>
        <translation>%1 ist belegt durch: %2</translation>
    </message>
    <message>
        <source>This key can not be used</source>
        <translation>Diese Taste kann nicht verwendet werden</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>The file is not there or can&apos;t be read.</source>
        <translation>Die Datei ist nicht da oder nicht lesbar.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Gerade wird ein anderer Tresor importiert. Versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Der Tresor kann nicht geschrieben werden. Prüfen Sie den freien Platz und ob Sie in den Ordner Ihrer Tresore schreiben dürfen.</translation>
    </message>
    <message>
        <source>The file would unpack to more than 4 GiB, or to a hundred times its size. No safe does that, so it was not imported.</source>
        <translation>Die Datei würde entpackt mehr als 4 GiB oder das Hundertfache ihrer Größe belegen. Das tut kein Tresor, darum wurde sie nicht importiert.</translation>
    </message>
    <message>
        <source>This file is not an archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>Diese Datei ist kein Archiv. Wählen Sie eine Datei, die aus einem Tresor exportiert oder gesichert wurde.</translation>
    </message>
    <message>
        <source>The file is damaged or was cut short. Copy it again from where it came from, or choose another backup.</source>
        <translation>Die Datei ist beschädigt oder abgeschnitten. Kopieren Sie sie erneut von ihrer Quelle, oder wählen Sie eine andere Sicherung.</translation>
    </message>
    <message>
        <source>The archive has a password of its own or is packed in a way that can&apos;t be read. Pack it again as a plain ZIP file.</source>
        <translation>Das Archiv hat ein eigenes Passwort oder ist auf eine Weise gepackt, die nicht lesbar ist. Packen Sie es erneut als einfache ZIP-Datei.</translation>
    </message>
    <message>
        <source>The archive holds a file that would be written outside the safe. Somebody may have tampered with it.</source>
        <translation>Das Archiv enthält eine Datei, die außerhalb des Tresors geschrieben würde. Vielleicht wurde es manipuliert.</translation>
    </message>
    <message>
        <source>The archive holds two files of the same name. Somebody may have tampered with it.</source>
        <translation>Das Archiv enthält zwei Dateien gleichen Namens. Vielleicht wurde es manipuliert.</translation>
    </message>
    <message>
        <source>There is no safe in this archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>In diesem Archiv ist kein Tresor. Wählen Sie eine Datei, die aus einem Tresor exportiert oder gesichert wurde.</translation>
    </message>
</context>
<context>
    <name>InstallSteps</name>
    <message>
        <source>Add the extension to %1</source>
        <translation>Die Erweiterung zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>The extension did not come with this program. Install the program anew to get it.</source>
        <translation>Die Erweiterung lag diesem Programm nicht bei. Installieren Sie das Programm neu, um sie zu erhalten.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the address</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>In %1 open the address %2</source>
        <translation>Öffnen Sie in %1 die Adresse %2</translation>
    </message>
    <message>
        <source>Choose “Load Temporary Add-on…” and the file “manifest.json” in the folder of the extension</source>
        <translation>Wählen Sie „Temporäres Add-on laden …“ und die Datei „manifest.json“ im Ordner der Erweiterung</translation>
    </message>
    <message>
        <source>Come back here: the program asks whether Firefox may connect</source>
        <translation>Kommen Sie hierher zurück: Das Programm fragt, ob Firefox sich verbinden darf</translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation>Schalten Sie den „Entwicklermodus“ ein</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Wählen Sie „Entpackte Erweiterung laden“ und den Ordner der Erweiterung</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Ordner der Erweiterung</translation>
    </message>
    <message>
        <source>Firefox forgets an extension that was added this way when it is closed.</source>
        <translation>Firefox vergisst eine so hinzugefügte Erweiterung, wenn es geschlossen wird.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Do you want to delete the item forever?
It can not be restored.</source>
        <translation>Möchten Sie den Eintrag endgültig löschen?
Er lässt sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do you want to remove item?</source>
        <translation>Möchten Sie den Eintrag entfernen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Do you want to delete all items in the trash forever?
They can not be restored.</source>
        <translation>Möchten Sie alle Einträge im Papierkorb endgültig löschen?
Sie lassen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation>
            <numerusform>Möchten Sie %n Eintrag endgültig löschen?
Er lässt sich nicht wiederherstellen.</numerusform>
            <numerusform>Möchten Sie %n Einträge endgültig löschen?
Sie lassen sich nicht wiederherstellen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation>
            <numerusform>Möchten Sie %n Eintrag entfernen?</numerusform>
            <numerusform>Möchten Sie %n Einträge entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Their attachment is deleted as well.</source>
        <translation>Der Anhang wird mit gelöscht.</translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation>
            <numerusform>Der Anhang wird mit gelöscht.</numerusform>
            <numerusform>Die %n Anhänge werden mit gelöscht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemChanges</name>
    <message>
        <source>Can&apos;t delete now.</source>
        <translation>Löschen ist gerade nicht möglich.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed. Delete the items when that is done.</source>
        <translation>Das Passwort des Tresors wird gerade geändert. Löschen Sie die Einträge danach.</translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation>Löschen nicht möglich.</translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation>Die Einträge sind noch da. Prüfen Sie, ob der Ordner des Tresors beschreibbar ist:
%1</translation>
    </message>
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>When logging in</source>
        <translation>Beim Anmelden</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Kartennummer</translation>
    </message>
    <message>
        <source>Card type</source>
        <translation>Kartenart</translation>
    </message>
    <message>
        <source>Card holder</source>
        <translation>Karteninhaber</translation>
    </message>
    <message>
        <source>Expires</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>Security code</source>
        <translation>Prüfziffer</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Bank phone</source>
        <translation>Telefon der Bank</translation>
    </message>
    <message>
        <source>Bank web site</source>
        <translation>Website der Bank</translation>
    </message>
    <message>
        <source>Account type</source>
        <translation>Kontoart</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Kontoinhaber</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Routing number</source>
        <translation>Bankleitzahl</translation>
    </message>
    <message>
        <source>IBAN</source>
        <translation>IBAN</translation>
    </message>
    <message>
        <source>SWIFT</source>
        <translation>SWIFT</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Birth date</source>
        <translation>Geburtsdatum</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Address line 1</source>
        <translation>Adresszeile 1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Beruf</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Adresszeile 2</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Mobiltelefon</translation>
    </message>
    <message>
        <source>Business phone</source>
        <translation>Telefon (Arbeit)</translation>
    </message>
    <message>
        <source>Skype</source>
        <translation>Skype</translation>
    </message>
    <message>
        <source>Passport number</source>
        <translation>Passnummer</translation>
    </message>
    <message>
        <source>Passport type</source>
        <translation>Passart</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Voller Name</translation>
    </message>
    <message>
        <source>Birth place</source>
        <translation>Geburtsort</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Staatsangehörigkeit</translation>
    </message>
    <message>
        <source>Authority</source>
        <translation>Behörde</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Ausgestellt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Führerscheinnummer</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Auflagen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Lizenzschlüssel</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Ausfüllen und absenden</translation>
    </message>
    <message>
        <source>Only fill</source>
        <translation>Nur ausfüllen</translation>
    </message>
    <message>
        <source>Use application setting (fill and submit)</source>
        <translation>Wie in den Einstellungen (ausfüllen und absenden)</translation>
    </message>
    <message>
        <source>Use application setting (only fill)</source>
        <translation>Wie in den Einstellungen (nur ausfüllen)</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Männlich</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Weiblich</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Logins</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>Credit cards</source>
        <translation>Kreditkarten</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Bankkonto</translation>
    </message>
    <message>
        <source>Bank accounts</source>
        <translation>Bankkonten</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identität</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identitäten</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Reisepass</translation>
    </message>
    <message>
        <source>Passports</source>
        <translation>Reisepässe</translation>
    </message>
    <message>
        <source>Social security</source>
        <translation>Sozialversicherung</translation>
    </message>
    <message>
        <source>Driver licence</source>
        <translation>Führerschein</translation>
    </message>
    <message>
        <source>Driver licences</source>
        <translation>Führerscheine</translation>
    </message>
    <message>
        <source>Secure note</source>
        <translation>Sichere Notiz</translation>
    </message>
    <message>
        <source>Secure notes</source>
        <translation>Sichere Notizen</translation>
    </message>
    <message>
        <source>FTP account</source>
        <translation>FTP-Konto</translation>
    </message>
    <message>
        <source>FTP accounts</source>
        <translation>FTP-Konten</translation>
    </message>
    <message>
        <source>Software licence</source>
        <translation>Softwarelizenz</translation>
    </message>
    <message>
        <source>Software licences</source>
        <translation>Softwarelizenzen</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Anhang</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Anhänge</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Alle Einträge</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Meistbenutzt</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>New login</source>
        <translation>Neuer Login</translation>
    </message>
    <message>
        <source>New credit card</source>
        <translation>Neue Kreditkarte</translation>
    </message>
    <message>
        <source>New bank account</source>
        <translation>Neues Bankkonto</translation>
    </message>
    <message>
        <source>New identity</source>
        <translation>Neue Identität</translation>
    </message>
    <message>
        <source>New passport</source>
        <translation>Neuer Reisepass</translation>
    </message>
    <message>
        <source>New social security number</source>
        <translation>Neue Sozialversicherungsnummer</translation>
    </message>
    <message>
        <source>New driver licence</source>
        <translation>Neuer Führerschein</translation>
    </message>
    <message>
        <source>New secure note</source>
        <translation>Neue sichere Notiz</translation>
    </message>
    <message>
        <source>New FTP account</source>
        <translation>Neues FTP-Konto</translation>
    </message>
    <message>
        <source>New software licence</source>
        <translation>Neue Softwarelizenz</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Neuer Anhang</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Neuer Eintrag</translation>
    </message>
    <message>
        <source>Copy password</source>
        <translation>Passwort kopieren</translation>
    </message>
    <message>
        <source>Copy card number</source>
        <translation>Kartennummer kopieren</translation>
    </message>
    <message>
        <source>Copy account number</source>
        <translation>Kontonummer kopieren</translation>
    </message>
    <message>
        <source>Copy email address</source>
        <translation>E-Mail-Adresse kopieren</translation>
    </message>
    <message>
        <source>Copy passport number</source>
        <translation>Passnummer kopieren</translation>
    </message>
    <message>
        <source>Copy number</source>
        <translation>Nummer kopieren</translation>
    </message>
    <message>
        <source>Copy licence number</source>
        <translation>Führerscheinnummer kopieren</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Text kopieren</translation>
    </message>
    <message>
        <source>Copy licence key</source>
        <translation>Lizenzschlüssel kopieren</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Läuft ab</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Fill in</source>
        <translation>Eintragen</translation>
    </message>
</context>
<context>
    <name>ItemListPane</name>
    <message>
        <source>Mark an item with the star, and it appears here.</source>
        <translation>Markieren Sie einen Eintrag mit dem Stern, und er erscheint hier.</translation>
    </message>
    <message>
        <source>Items appear here once you have logged in with them.</source>
        <translation>Einträge erscheinen hier, sobald Sie sich mit ihnen angemeldet haben.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation>Strg F</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>%1 durchsuchen</translation>
    </message>
    <message>
        <source>No items found</source>
        <translation>Keine Einträge gefunden</translation>
    </message>
    <message>
        <source>Try fewer words, or press Esc to see all items.</source>
        <translation>Versuchen Sie weniger Wörter, oder sehen Sie mit Esc alle Einträge.</translation>
    </message>
    <message>
        <source>No items in this category</source>
        <translation>Keine Einträge in dieser Kategorie</translation>
    </message>
    <message>
        <source>What you remove stays here until you delete it forever.</source>
        <translation>Was Sie entfernen, bleibt hier, bis Sie es endgültig löschen.</translation>
    </message>
    <message>
        <source>Your safe is empty</source>
        <translation>Ihr Tresor ist leer</translation>
    </message>
    <message>
        <source>Keep your user names and passwords here.</source>
        <translation>Bewahren Sie hier Ihre Benutzernamen und Passwörter auf.</translation>
    </message>
    <message>
        <source>Add your first login</source>
        <translation>Ersten Login hinzufügen</translation>
    </message>
    <message>
        <source>Press Ctrl+N to add the first one.</source>
        <translation>Strg+N fügt den ersten hinzu.</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Neuer Eintrag</translation>
    </message>
    <message>
        <source>New item (Ctrl+N)</source>
        <translation>Neuer Eintrag (Strg+N)</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Passwörter übernehmen …</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Aus den Favoriten nehmen</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu den Favoriten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Open address</source>
        <translation>Adresse öffnen</translation>
    </message>
    <message>
        <source>Copy user name</source>
        <translation>Benutzernamen kopieren</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Delete forever…</source>
        <translation>Endgültig löschen …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Log in (Ctrl+Return)</source>
        <translation>Anmelden (Strg+Eingabe)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Aus den Favoriten nehmen</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu den Favoriten</translation>
    </message>
    <message>
        <source>Modified %1 · created %2</source>
        <translation>Geändert %1 · angelegt %2</translation>
    </message>
    <message>
        <source>Used once</source>
        <translation>Einmal benutzt</translation>
    </message>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation>
            <numerusform>%n-mal benutzt</numerusform>
            <numerusform>%n-mal benutzt</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit (F2)</source>
        <translation>Bearbeiten (F2)</translation>
    </message>
    <message>
        <source>Fill into the open page (Ctrl+Return)</source>
        <translation>In die offene Seite eintragen (Strg+Eingabe)</translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation>Kein Eintrag ausgewählt</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save (Ctrl+S)</source>
        <translation>Speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Änderungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There are empty required values.
Fill and try again.</source>
        <translation>Notwendige Felder sind leer.
Füllen Sie sie aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The object has been modified</source>
        <translation>Der Eintrag wurde geändert</translation>
    </message>
    <message>
        <source>There are empty required fields. What would you like to do?</source>
        <translation>Notwendige Felder sind leer. Was möchten Sie tun?</translation>
    </message>
    <message>
        <source>You have not saved changes yet</source>
        <translation>Sie haben die Änderungen noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add one.</source>
        <translation>Wählen Sie links einen Eintrag, oder fügen Sie mit Strg+N einen hinzu.</translation>
    </message>
    <message>
        <source>There are values that are no date or no number.
Correct them and try again.</source>
        <translation>Manche Werte sind kein Datum oder keine Zahl.
Berichtigen Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Neuer Anhang</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Bitte eine Datei auswählen</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>LineInput</name>
    <message>
        <source>Open in browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>Open in browser (Alt+Return)</source>
        <translation>Im Browser öffnen (Alt+Eingabe)</translation>
    </message>
    <message>
        <source>e.g. %1</source>
        <translation>z. B. %1</translation>
    </message>
    <message>
        <source>MM / YYYY</source>
        <translation>MM / JJJJ</translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation>Datum auswählen</translation>
    </message>
    <message>
        <source>Choose a date (Alt+Down)</source>
        <translation>Datum auswählen (Alt+Abwärts)</translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation>
            <numerusform>Nach %n Minute ohne Eingabe gesperrt</numerusform>
            <numerusform>Nach %n Minuten ohne Eingabe gesperrt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoginSaving</name>
    <message>
        <source>%1 (former password, until %2)</source>
        <translation>%1 (früheres Passwort, bis %2)</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Moved to trash</source>
        <translation>In den Papierkorb gelegt</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation>
            <numerusform>%n Eintrag in den Papierkorb gelegt</numerusform>
            <numerusform>%n Einträge in den Papierkorb gelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>“%1” was deleted on another computer.</source>
        <translation>„%1“ wurde auf einem anderen Computer gelöscht.</translation>
    </message>
    <message>
        <source>What you have typed is kept. Save it as a new item, or discard it.</source>
        <translation>Was Sie geschrieben haben, ist noch da. Speichern Sie es als neuen Eintrag oder verwerfen Sie es.</translation>
    </message>
</context>
<context>
    <name>MasterPasswordPage</name>
    <message>
        <source>Safe</source>
        <translation>Tresor</translation>
    </message>
    <message>
        <source>Click to select safe</source>
        <translation>Tresor auswählen</translation>
    </message>
    <message>
        <source>Enter Password</source>
        <translation>Passwort eingeben</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Reading items</source>
        <translation>Einträge werden gelesen</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Neu anlegen ...</translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Willkommen zurück</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Sie haben noch keinen Tresor.
Einen anlegen?</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Merkhilfe: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Unlocking: %1 of %2 items</source>
        <translation>Entsperren: %1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Wird entsperrt …</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Aus einer Sicherung wiederherstellen …</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Tresore …</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (wird gesucht …)</translation>
    </message>
    <message>
        <source>Saving your last changes first…</source>
        <translation>Ihre letzten Änderungen werden zuerst gespeichert …</translation>
    </message>
    <message>
        <source>Locked. Saving your last changes…</source>
        <translation>Gesperrt. Ihre letzten Änderungen werden gespeichert …</translation>
    </message>
</context>
<context>
    <name>MonthPopup</name>
    <message>
        <source>Previous year</source>
        <translation>Voriges Jahr</translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Nächstes Jahr</translation>
    </message>
</context>
<context>
    <name>MoveInColumns</name>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The columns of “%1” are not known. Say what each one holds.</source>
        <translation>Die Spalten von „%1“ sind nicht bekannt. Sagen Sie, was in jeder steht.</translation>
    </message>
    <message>
        <source>Keep it in the note</source>
        <translation>In der Notiz behalten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>MoveInDialog</name>
    <message>
        <source>Choose the exported file</source>
        <translation>Exportierte Datei wählen</translation>
    </message>
    <message>
        <source>Exports of passwords (%1)</source>
        <translation>Exportierte Passwörter (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Alle Dateien (%1)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Bring passwords over</source>
        <translation>Passwörter übernehmen</translation>
    </message>
    <message>
        <source>Drop the exported file here</source>
        <translation>Exportierte Datei hier ablegen</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Kopiert.</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>„%1“ wird gelesen …</translation>
    </message>
    <message>
        <source>Added %1 of %2…</source>
        <translation>%1 von %2 hinzugefügt …</translation>
    </message>
    <message>
        <source>What came in.txt</source>
        <translation>Was übernommen wurde.txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>The file cannot be written. Choose another folder.</source>
        <translation>Die Datei lässt sich nicht schreiben. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>The file does not go to the bin: it is gone at once. Nobody can promise that nothing of it stays behind: SSDs, backups and folders that are synchronised may keep what was deleted for a while.</source>
        <translation>Die Datei kommt nicht in den Papierkorb: Sie ist sofort weg. Niemand kann versprechen, dass nichts von ihr bleibt: SSDs, Sicherungen und synchronisierte Ordner behalten Gelöschtes manchmal noch eine Weile.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The file “%1” is deleted. If you made other copies of it, delete them, too.</source>
        <translation>Die Datei „%1“ ist gelöscht. Haben Sie weitere Kopien von ihr gemacht, löschen Sie auch diese.</translation>
    </message>
    <message>
        <source>The file cannot be deleted. Close the program that has it open, then try again:
%1</source>
        <translation>Die Datei lässt sich nicht löschen. Schließen Sie das Programm, in dem sie offen ist, und versuchen Sie es noch einmal:
%1</translation>
    </message>
</context>
<context>
    <name>MoveInEnd</name>
    <message>
        <source>What did not come in</source>
        <translation>Was nicht übernommen wurde</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Bericht speichern …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Look at what did not come in, then delete the file.</source>
        <translation>In der Datei „%1“ stehen Ihre Passwörter noch für jeden lesbar. Sehen Sie nach, was nicht übernommen wurde, dann löschen Sie die Datei.</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Delete it now.</source>
        <translation>In der Datei „%1“ stehen Ihre Passwörter noch für jeden lesbar. Löschen Sie sie jetzt.</translation>
    </message>
</context>
<context>
    <name>MoveInModel</name>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>not chosen</source>
        <translation>nicht gewählt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Wird zu</translation>
    </message>
</context>
<context>
    <name>MoveInPage</name>
    <message>
        <source>Bring passwords over…</source>
        <translation>Passwörter übernehmen …</translation>
    </message>
    <message>
        <source>Chrome, Edge, Firefox, Safari, Bitwarden and KeePassXC write their passwords into a file, which this program reads. You see everything before it comes in, and how to make the file.</source>
        <translation>Chrome, Edge, Firefox, Safari, Bitwarden und KeePassXC schreiben ihre Passwörter in eine Datei, die dieses Programm liest. Sie sehen alles, bevor es übernommen wird, und wie Sie die Datei anlegen.</translation>
    </message>
    <message>
        <source>Open a safe first: the passwords are kept in it.</source>
        <translation>Öffnen Sie zuerst einen Tresor: In ihm werden die Passwörter aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>MoveInPreview</name>
    <message>
        <source>Select all</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Keine wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>Ein Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>Eine Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n logins will be added</source>
        <translation>
            <numerusform>Ein Login wird hinzugefügt</numerusform>
            <numerusform>%n Logins werden hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items will be added</source>
        <translation>
            <numerusform>Ein Eintrag wird hinzugefügt</numerusform>
            <numerusform>%n Einträge werden hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n are already there</source>
        <translation>
            <numerusform>einer ist schon da</numerusform>
            <numerusform>%n sind schon da</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable</source>
        <translation>
            <numerusform>einer unlesbar</numerusform>
            <numerusform>%n unlesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>einer ausgelassen</numerusform>
            <numerusform>%n ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n logins</source>
        <translation>
            <numerusform>%n Login hinzufügen</numerusform>
            <numerusform>%n Logins hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n items</source>
        <translation>
            <numerusform>%n Eintrag hinzufügen</numerusform>
            <numerusform>%n Einträge hinzufügen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveInProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
</context>
<context>
    <name>MoveInReport</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not written to the disk</source>
        <translation>Nicht auf die Festplatte geschrieben</translation>
    </message>
    <message>
        <source>Not added before the safe was locked</source>
        <translation>Nicht hinzugefügt, bevor der Tresor gesperrt wurde</translation>
    </message>
    <message>
        <source>Not added before you cancelled</source>
        <translation>Nicht hinzugefügt, bevor Sie abgebrochen haben</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Nicht gewählt</translation>
    </message>
    <message>
        <source>Nothing came in</source>
        <translation>Nichts wurde übernommen</translation>
    </message>
    <message numerus="yes">
        <source>%n logins came in</source>
        <translation>
            <numerusform>Ein Login wurde übernommen</numerusform>
            <numerusform>%n Logins wurden übernommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came in</source>
        <translation>
            <numerusform>Ein Eintrag wurde übernommen</numerusform>
            <numerusform>%n Einträge wurden übernommen</numerusform>
        </translation>
    </message>
    <message>
        <source>You cancelled. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Sie haben abgebrochen. Was vorher übernommen wurde, ist gespeichert. Für den Rest wählen Sie die Datei noch einmal: Was schon da ist, wird erkannt.</translation>
    </message>
    <message>
        <source>The safe could not be written to. Check the free space and the permissions, then choose the file again: what is there is recognised.</source>
        <translation>In den Tresor ließ sich nicht schreiben. Prüfen Sie freien Platz und Rechte, dann wählen Sie die Datei noch einmal: Was schon da ist, wird erkannt.</translation>
    </message>
    <message>
        <source>The safe was locked meanwhile. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Der Tresor wurde inzwischen gesperrt. Was vorher übernommen wurde, ist gespeichert. Für den Rest wählen Sie die Datei noch einmal: Was schon da ist, wird erkannt.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>MoveInStart</name>
    <message>
        <source>How to make the file</source>
        <translation>So entsteht die Datei</translation>
    </message>
    <message>
        <source>Drop the exported file here, or choose it. Nothing is added before you have seen what will come in.</source>
        <translation>Legen Sie die exportierte Datei hier ab oder wählen Sie sie. Nichts wird hinzugefügt, bevor Sie gesehen haben, was kommt.</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Datei wählen …</translation>
    </message>
</context>
<context>
    <name>MoveInTable</name>
    <message>
        <source>What will come in</source>
        <translation>Was übernommen wird</translation>
    </message>
</context>
<context>
    <name>MoveInTexts</name>
    <message>
        <source>The file is empty. Export the passwords again, and choose the new file.</source>
        <translation>Die Datei ist leer. Exportieren Sie die Passwörter noch einmal und wählen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>The file holds no text that could be read. Export the passwords as CSV or JSON, and choose that file.</source>
        <translation>Die Datei enthält keinen lesbaren Text. Exportieren Sie die Passwörter als CSV oder JSON und wählen Sie diese Datei.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a text. Export the passwords again, and choose the new file.</source>
        <translation>Die Datei endet mitten in einem Text. Exportieren Sie die Passwörter noch einmal und wählen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>The file is encrypted. Export again as JSON or CSV without encryption, and delete that file afterwards.</source>
        <translation>Die Datei ist verschlüsselt. Exportieren Sie noch einmal als JSON oder CSV ohne Verschlüsselung, und löschen Sie diese Datei danach.</translation>
    </message>
    <message>
        <source>This is no export that the program knows. It reads the JSON files of Bitwarden and its own, and CSV files of browsers and other programs.</source>
        <translation>Diesen Export kennt das Programm nicht. Es liest JSON-Dateien von Bitwarden und die eigenen sowie CSV-Dateien von Browsern und anderen Programmen.</translation>
    </message>
    <message>
        <source>The names of the columns are not known. Say what each column holds.</source>
        <translation>Die Namen der Spalten sind nicht bekannt. Sagen Sie, was in jeder Spalte steht.</translation>
    </message>
    <message>
        <source>Save the file where you find it again.</source>
        <translation>Speichern Sie die Datei dort, wo Sie sie wiederfinden.</translation>
    </message>
    <message>
        <source>Type %1 into the address bar.</source>
        <translation>Geben Sie %1 in die Adresszeile ein.</translation>
    </message>
    <message>
        <source>Beside “Export passwords” press “Download file”.</source>
        <translation>Drücken Sie neben „Passwörter exportieren“ auf „Datei herunterladen“.</translation>
    </message>
    <message>
        <source>Press the three dots above the list and choose “Export passwords”.</source>
        <translation>Drücken Sie auf die drei Punkte über der Liste und wählen Sie „Passwörter exportieren“.</translation>
    </message>
    <message>
        <source>Press the three dots in the corner and choose “Export passwords…”.</source>
        <translation>Drücken Sie auf die drei Punkte in der Ecke und wählen Sie „Passwörter exportieren …“.</translation>
    </message>
    <message>
        <source>On the Mac open the program “Passwords”, or Safari on older systems.</source>
        <translation>Öffnen Sie auf dem Mac das Programm „Passwörter“, auf älteren Systemen Safari.</translation>
    </message>
    <message>
        <source>In the menu “File” choose to export all passwords to a file.</source>
        <translation>Wählen Sie im Menü „Ablage“, alle Passwörter in eine Datei zu exportieren.</translation>
    </message>
    <message>
        <source>Bring the file to this computer.</source>
        <translation>Bringen Sie die Datei auf diesen Computer.</translation>
    </message>
    <message>
        <source>Choose “Export vault”: under “Tools” in the web vault, in the menu “File” of the program.</source>
        <translation>Wählen Sie „Tresor exportieren“: im Web-Tresor unter „Werkzeuge“, im Programm im Menü „Datei“.</translation>
    </message>
    <message>
        <source>Choose “.json”, which holds cards and identities too, and no encryption.</source>
        <translation>Wählen Sie „.json“, das auch Karten und Identitäten enthält, und keine Verschlüsselung.</translation>
    </message>
    <message>
        <source>Open the database.</source>
        <translation>Öffnen Sie die Datenbank.</translation>
    </message>
    <message>
        <source>In the menu “Database” choose “Export”, then “CSV file…”.</source>
        <translation>Wählen Sie im Menü „Datenbank“ den Punkt „Exportieren“, dann „CSV-Datei …“.</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Ein anderer Tresor</translation>
    </message>
    <message>
        <source>Open the other safe in this program.</source>
        <translation>Öffnen Sie den anderen Tresor in diesem Programm.</translation>
    </message>
    <message>
        <source>In the menu of the safe choose “Export items…”, then JSON.</source>
        <translation>Wählen Sie im Menü des Tresors „Einträge exportieren …“, dann JSON.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Ein anderes Programm</translation>
    </message>
    <message>
        <source>Export the passwords as CSV, with the names of the columns in the first row.</source>
        <translation>Exportieren Sie die Passwörter als CSV, mit den Namen der Spalten in der ersten Zeile.</translation>
    </message>
    <message>
        <source>Choose the file here. You are asked what each column holds, if that is not known.</source>
        <translation>Wählen Sie die Datei hier. Was in jeder Spalte steht, werden Sie gefragt, wenn es nicht bekannt ist.</translation>
    </message>
    <message>
        <source>recognised as an export of a browser</source>
        <translation>als Export eines Browsers erkannt</translation>
    </message>
    <message>
        <source>read by the columns that you chose</source>
        <translation>nach den Spalten gelesen, die Sie gewählt haben</translation>
    </message>
    <message>
        <source>recognised as an export of %1</source>
        <translation>als Export von %1 erkannt</translation>
    </message>
    <message>
        <source>There are no rows below the names of the columns. Export the passwords again, and choose the new file.</source>
        <translation>Unter den Namen der Spalten steht keine Zeile. Exportieren Sie die Passwörter noch einmal und wählen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>The file is no longer there. Choose it again.</source>
        <translation>Die Datei ist nicht mehr da. Wählen Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>This is no file. Choose the exported file itself.</source>
        <translation>Das ist keine Datei. Wählen Sie die exportierte Datei selbst.</translation>
    </message>
    <message>
        <source>The file cannot be read. Close the program that has it open, or copy it to another folder.</source>
        <translation>Die Datei lässt sich nicht lesen. Schließen Sie das Programm, in dem sie offen ist, oder kopieren Sie sie in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The file is larger than %1, which no export of passwords is. Check that it is the right one.</source>
        <translation>Die Datei ist größer als %1; so groß ist kein Export von Passwörtern. Prüfen Sie, ob es die richtige ist.</translation>
    </message>
    <message>
        <source>Not a web address</source>
        <translation>Keine Webadresse</translation>
    </message>
    <message>
        <source>Nothing in it</source>
        <translation>Nichts darin</translation>
    </message>
    <message>
        <source>Unknown kind</source>
        <translation>Unbekannte Art</translation>
    </message>
    <message>
        <source>Wrong number of columns</source>
        <translation>Falsche Zahl von Spalten</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Schon da</translation>
    </message>
    <message>
        <source>Other password</source>
        <translation>Anderes Passwort</translation>
    </message>
    <message>
        <source>Other note</source>
        <translation>Andere Notiz</translation>
    </message>
    <message>
        <source>Without address</source>
        <translation>Ohne Adresse</translation>
    </message>
    <message>
        <source>It is in the safe, or further up in the file.</source>
        <translation>Es ist im Tresor oder steht weiter oben in der Datei.</translation>
    </message>
    <message>
        <source>There is a login of the same site and user name with another password. Both will be there.</source>
        <translation>Es gibt einen Login derselben Website mit demselben Benutzernamen und einem anderen Passwort. Beide werden da sein.</translation>
    </message>
    <message>
        <source>There is such an item with another note. Both will be there.</source>
        <translation>Es gibt so einen Eintrag mit einer anderen Notiz. Beide werden da sein.</translation>
    </message>
    <message>
        <source>Its address belongs to an app or a file, and goes to the note.</source>
        <translation>Seine Adresse gehört zu einer App oder einer Datei und kommt in die Notiz.</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Eintrag %1</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>(entry %1)</source>
        <translation>(Eintrag %1)</translation>
    </message>
    <message>
        <source>(row %1)</source>
        <translation>(Zeile %1)</translation>
    </message>
</context>
<context>
    <name>NarrowLayout</name>
    <message>
        <source>Back to the list (Esc)</source>
        <translation>Zurück zur Liste (Esc)</translation>
    </message>
</context>
<context>
    <name>NewItemMenu</name>
    <message>
        <source>New item</source>
        <translation>Neuer Eintrag</translation>
    </message>
</context>
<context>
    <name>NewSafePage</name>
    <message>
        <source>The hint is shown to everyone who opens this window. Let it remind you of the password, and nobody else.</source>
        <translation>Die Merkhilfe sieht jeder, der dieses Fenster öffnet. Sie soll nur Sie an das Passwort erinnern, niemanden sonst.</translation>
    </message>
    <message>
        <source>Your safe “%1” is open.</source>
        <translation>Ihr Tresor „%1“ ist offen.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Do you have a safe already?</source>
        <translation>Haben Sie schon einen Tresor?</translation>
    </message>
    <message>
        <source>Open its folder…</source>
        <translation>Seinen Ordner öffnen …</translation>
    </message>
    <message>
        <source>Import an archive…</source>
        <translation>Ein Archiv importieren …</translation>
    </message>
    <message>
        <source>“%1” is there. Unlock it with its master password after these steps.</source>
        <translation>„%1“ ist da. Öffnen Sie ihn nach diesen Schritten mit seinem Masterpasswort.</translation>
    </message>
</context>
<context>
    <name>NewVersionDialog</name>
    <message>
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
    <message>
        <source>New version</source>
        <translation>Neue Version</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>Version %1 ist da</translation>
    </message>
    <message>
        <source>You have version %1. Your safes and settings stay as they are when you install the new one.</source>
        <translation>Sie haben Version %1. Ihre Tresore und Einstellungen bleiben, wie sie sind, wenn Sie die neue installieren.</translation>
    </message>
    <message>
        <source>The page is on %1 and opens in your browser.</source>
        <translation>Die Seite liegt auf %1 und öffnet sich in Ihrem Browser.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Open the download page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
</context>
<context>
    <name>NoticeBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>PMTranslator</name>
    <message>
        <source>SettingsLocaleTitle</source>
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>PMUiProvider</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Glaceron Password Manager</source>
        <translation>Glaceron Password Manager</translation>
    </message>
    <message>
        <source>Version %1

Ctrl+N adds a login, Ctrl+F searches, Ctrl+E edits, Ctrl+S saves.
Ctrl+B copies the user name, Ctrl+Shift+C the password.
Ctrl+Return logs in, Ctrl+L locks the safe, Ctrl+Q ends the program.

The typeface is Inter (SIL Open Font License), the icons are Tabler Icons (MIT License).</source>
        <translation>Version %1

Strg+N legt einen Login an, Strg+F sucht, Strg+E bearbeitet, Strg+S speichert.
Strg+B kopiert den Benutzernamen, Strg+Umschalt+C das Passwort.
Strg+Eingabe meldet an, Strg+L sperrt den Tresor, Strg+Q beendet das Programm.

Die Schrift ist Inter (SIL Open Font License), die Symbole sind Tabler Icons (MIT-Lizenz).</translation>
    </message>
    <message>
        <source>Choose the folder of the safe</source>
        <translation>Ordner des Tresors wählen</translation>
    </message>
</context>
<context>
    <name>PasswordChangeDesk</name>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Writing “%1” anew under its new password. You can go on working meanwhile.</source>
        <translation>„%1“ wird unter dem neuen Passwort neu geschrieben. Sie können dabei weiterarbeiten.</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>View text under dots</source>
        <translation>Verborgenen Text anzeigen</translation>
    </message>
    <message>
        <source>View text under dots (Ctrl+R)</source>
        <translation>Verborgenen Text anzeigen (Strg+R)</translation>
    </message>
</context>
<context>
    <name>PasswordGeneratorDialog</name>
    <message>
        <source>Password Generator</source>
        <translation>Passwortgenerator</translation>
    </message>
</context>
<context>
    <name>PasswordStrength</name>
    <message>
        <source>Strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Terrible</source>
        <translation>Sehr schwach</translation>
    </message>
</context>
<context>
    <name>PasswordWeakness</name>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>a word from a list</source>
        <translation>ein Wort aus einer Liste</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>ein Datum</translation>
    </message>
    <message>
        <source>keys side by side</source>
        <translation>Tasten nebeneinander</translation>
    </message>
    <message>
        <source>a sequence</source>
        <translation>eine Folge</translation>
    </message>
    <message>
        <source>a repetition</source>
        <translation>eine Wiederholung</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>eine Ziffer</translation>
    </message>
    <message>
        <source>digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>a few characters</source>
        <translation>wenige Zeichen</translation>
    </message>
    <message>
        <source>too few characters</source>
        <translation>zu wenige Zeichen</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between parts</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>PhoneInput</name>
    <message>
        <source>Country code</source>
        <translation>Landesvorwahl</translation>
    </message>
    <message>
        <source>%1: country code</source>
        <translation>%1: Landesvorwahl</translation>
    </message>
</context>
<context>
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
        <translation>Ungültige Version der Erweiterung für %1: %2</translation>
    </message>
</context>
<context>
    <name>PluginsPage</name>
    <message>
        <source>No browser was found that the extension is made for: Chrome, Chromium or Firefox.</source>
        <translation>Es wurde kein Browser gefunden, für den es die Erweiterung gibt: Chrome, Chromium oder Firefox.</translation>
    </message>
    <message>
        <source>Looking for browsers…</source>
        <translation>Browser werden gesucht …</translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation>Ein Browser ist verbunden.</translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation>Noch ist kein Browser verbunden. Sobald einer es ist, sehen Sie es hier.</translation>
    </message>
    <message>
        <source>Opens your web links</source>
        <translation>Öffnet Ihre Weblinks</translation>
    </message>
    <message>
        <source>Installed %1</source>
        <translation>Installiert: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>%1, connected</source>
        <translation>%1, verbunden</translation>
    </message>
    <message>
        <source>Install Plugin</source>
        <translation>Erweiterung installieren</translation>
    </message>
    <message>
        <source>Install Plugin: %1</source>
        <translation>Erweiterung installieren: %1</translation>
    </message>
</context>
<context>
    <name>ProgramShortcuts</name>
    <message>
        <source>copy</source>
        <translation>kopieren</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>ausschneiden</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>einfügen</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>rückgängig</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>wiederholen</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>alles auswählen</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>ein Befehl dieses Programms</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
</context>
<context>
    <name>QuickAccessWindow</name>
    <message>
        <source>Quick access</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>No safe yet</source>
        <translation>Noch kein Tresor</translation>
    </message>
    <message>
        <source>Create one in the main window; what it keeps is found here.</source>
        <translation>Legen Sie einen im Hauptfenster an; was er enthält, finden Sie hier.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Passwortgenerator</translation>
    </message>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>Es ist kein Browser mit der Erweiterung verbunden</translation>
    </message>
</context>
<context>
    <name>QuickBar</name>
    <message>
        <source>Logins</source>
        <translation>Logins</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identitäten</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>%1 (Ctrl+%2)</source>
        <translation>%1 (Strg+%2)</translation>
    </message>
</context>
<context>
    <name>QuickDelegate</name>
    <message>
        <source>For %1</source>
        <translation>Für %1</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Meistbenutzt</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identitäten</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Logins</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Eintragen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>QuickList</name>
    <message>
        <source>Search logins, cards, identities</source>
        <translation>Logins, Karten, Identitäten suchen</translation>
    </message>
    <message>
        <source>The arrow keys choose an item, Enter fills it. Ctrl+C copies its password, Ctrl+B its user name.</source>
        <translation>Die Pfeiltasten wählen einen Eintrag, die Eingabetaste trägt ihn ein. Strg+C kopiert das Passwort, Strg+B den Benutzernamen.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Try another word, or fewer letters.</source>
        <translation>Versuchen Sie ein anderes Wort oder weniger Buchstaben.</translation>
    </message>
    <message>
        <source>No logins yet</source>
        <translation>Noch keine Logins</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Noch keine Karten</translation>
    </message>
    <message>
        <source>No identities yet</source>
        <translation>Noch keine Identitäten</translation>
    </message>
    <message>
        <source>What you add in the main window is found here.</source>
        <translation>Was Sie im Hauptfenster hinzufügen, finden Sie hier.</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>adds an item</source>
        <translation>fügt einen Eintrag hinzu</translation>
    </message>
    <message>
        <source>searches</source>
        <translation>sucht</translation>
    </message>
    <message>
        <source>opens the page of a login and fills it in</source>
        <translation>öffnet die Seite eines Logins und füllt sie aus</translation>
    </message>
    <message>
        <source>locks the safe</source>
        <translation>sperrt den Tresor</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 um %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Restore from a backup</source>
        <translation>Aus einer Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Sicherungen werden gelesen …</translation>
    </message>
    <message>
        <source>The folder is not there</source>
        <translation>Der Ordner ist nicht da</translation>
    </message>
    <message>
        <source>Connect its drive, or choose the folder that your backups lie in.</source>
        <translation>Schließen Sie das Laufwerk an oder wählen Sie den Ordner, in dem Ihre Sicherungen liegen.</translation>
    </message>
    <message>
        <source>No backups here</source>
        <translation>Hier sind keine Sicherungen</translation>
    </message>
    <message>
        <source>Choose the folder that your backups lie in, such as one on another disk.</source>
        <translation>Wählen Sie den Ordner, in dem Ihre Sicherungen liegen, etwa auf einer anderen Festplatte.</translation>
    </message>
    <message>
        <source>It comes back as a new safe with the password of that time.</source>
        <translation>Sie kommt als neuer Tresor mit dem Passwort von damals zurück.</translation>
    </message>
</context>
<context>
    <name>SafeDesk</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the folder of a safe</source>
        <translation>Ordner eines Tresors öffnen</translation>
    </message>
    <message>
        <source>No safe there</source>
        <translation>Dort ist kein Tresor</translation>
    </message>
    <message>
        <source>There is no safe in this folder. The folder of a safe holds a file “safe.meta”:
%1</source>
        <translation>In diesem Ordner ist kein Tresor. Im Ordner eines Tresors liegt eine Datei „safe.meta“:
%1</translation>
    </message>
    <message>
        <source>Name of the safe</source>
        <translation>Name des Tresors</translation>
    </message>
    <message>
        <source>Can&apos;t rename.</source>
        <translation>Umbenennen nicht möglich.</translation>
    </message>
    <message>
        <source>The safe keeps its name. Check the free space and that you may write to its folder:
%1</source>
        <translation>Der Tresor behält seinen Namen. Prüfen Sie den freien Platz und ob Sie in seinen Ordner schreiben dürfen:
%1</translation>
    </message>
    <message>
        <source>Where is “%1” now?</source>
        <translation>Wo ist „%1“ jetzt?</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Ein anderer Tresor</translation>
    </message>
    <message>
        <source>This folder holds another safe than “%1”. Open it on its own with “Open the folder of a safe”, or choose another folder.</source>
        <translation>In diesem Ordner liegt ein anderer Tresor als „%1“. Öffnen Sie ihn für sich mit „Ordner eines Tresors öffnen“ oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is no safe in this folder:
%1</source>
        <translation>In diesem Ordner ist kein Tresor:
%1</translation>
    </message>
    <message>
        <source>Take “%1” off the list?</source>
        <translation>„%1“ von der Liste nehmen?</translation>
    </message>
    <message>
        <source>Its files stay where they are. “Open the folder of a safe” brings it back:
%1</source>
        <translation>Seine Dateien bleiben, wo sie sind. „Ordner eines Tresors öffnen“ bringt ihn zurück:
%1</translation>
    </message>
    <message>
        <source>Its folder is not there now. If it comes back, “Open the folder of a safe” finds it:
%1</source>
        <translation>Sein Ordner ist jetzt nicht da. Kommt er wieder, findet ihn „Ordner eines Tresors öffnen“:
%1</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Von der Liste nehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete safe</source>
        <translation>Tresor löschen</translation>
    </message>
    <message>
        <source>Deleting “%1”…</source>
        <translation>„%1“ wird gelöscht …</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is not in its folder any more.</source>
        <translation>Nichts wurde gelöscht: Der Tresor ist nicht mehr in seinem Ordner.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is being archived, or its password is being changed. Try again when that is done.</source>
        <translation>Nichts wurde gelöscht: Der Tresor wird gerade archiviert, oder sein Passwort wird geändert. Versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was deleted: another program has this safe open. Close it there and try again.</source>
        <translation>Nichts wurde gelöscht: Ein anderes Programm hat diesen Tresor offen. Schließen Sie ihn dort und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is as it was. Check that you may write to its folder and try again.</source>
        <translation>Nichts wurde gelöscht: Der Tresor ist, wie er war. Prüfen Sie, ob Sie in seinen Ordner schreiben dürfen, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>“%1” is gone, but some of its files could not be removed. They are encrypted, and you can delete them:
%2</source>
        <translation>„%1“ ist weg, aber einige seiner Dateien ließen sich nicht entfernen. Sie sind verschlüsselt, und Sie können sie löschen:
%2</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is gone. %n other files were in its folder and are still there:
%2</source>
        <translation>
            <numerusform>„%1“ ist weg. Eine andere Datei lag in seinem Ordner und ist noch da:
%2</numerusform>
            <numerusform>„%1“ ist weg. %n andere Dateien lagen in seinem Ordner und sind noch da:
%2</numerusform>
        </translation>
    </message>
    <message>
        <source>The safe keeps its name while its password is being changed. Try again when that is done.</source>
        <translation>Der Tresor behält seinen Namen, solange sein Passwort geändert wird. Versuchen Sie es danach noch einmal.</translation>
    </message>
</context>
<context>
    <name>SafeItemEditor</name>
    <message>
        <source>Editing “%1” · %2</source>
        <translation>„%1“ bearbeiten · %2</translation>
    </message>
    <message>
        <source>small</source>
        <extracomment>&quot;small&quot; where a language writes names inside a sentence small, else &quot;as they are&quot;</extracomment>
        <translation>as they are</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>More fields: %1</source>
        <extracomment>names of fields</extracomment>
        <translation>Weitere Felder: %1</translation>
    </message>
    <message>
        <source>More fields: %1…</source>
        <translation>Weitere Felder: %1 …</translation>
    </message>
</context>
<context>
    <name>SafeLines</name>
    <message>
        <source>Folder not found: it was on a drive that is not connected</source>
        <translation>Ordner nicht gefunden: Er lag auf einem Laufwerk, das nicht angeschlossen ist</translation>
    </message>
    <message>
        <source>Folder not found: it was moved, renamed or deleted</source>
        <translation>Ordner nicht gefunden: Er wurde verschoben, umbenannt oder gelöscht</translation>
    </message>
    <message>
        <source>There is no safe in its folder any more, or it can&apos;t be read</source>
        <translation>In seinem Ordner ist kein Tresor mehr, oder er ist nicht lesbar</translation>
    </message>
    <message>
        <source>in the cloud folder</source>
        <translation>im Cloud-Ordner</translation>
    </message>
    <message>
        <source>a copy of “%1”</source>
        <translation>eine Kopie von „%1“</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Last opened %1</source>
        <translation>Zuletzt geöffnet %1</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>Noch nicht geöffnet</translation>
    </message>
    <message>
        <source>synchronised %1</source>
        <translation>synchronisiert %1</translation>
    </message>
    <message>
        <source>backed up %1</source>
        <translation>gesichert %1</translation>
    </message>
    <message>
        <source>no backup yet</source>
        <translation>noch keine Sicherung</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>wird gesucht …</translation>
    </message>
</context>
<context>
    <name>SafeMenu</name>
    <message>
        <source>Create new...</source>
        <translation>Neu anlegen ...</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Tresore …</translation>
    </message>
    <message>
        <source>Synchronise now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Passwörter übernehmen …</translation>
    </message>
    <message>
        <source>Export items…</source>
        <translation>Einträge exportieren …</translation>
    </message>
    <message>
        <source>Export safe…</source>
        <translation>Tresor exportieren …</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Passwort ändern …</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (wird gesucht …)</translation>
    </message>
</context>
<context>
    <name>SafeRow</name>
    <message>
        <source>Locate…</source>
        <translation>Suchen …</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>More about “%1”</source>
        <translation>Mehr über „%1“</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Remove from list…</source>
        <translation>Von der Liste nehmen …</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
</context>
<context>
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Zu einem anderen Tresor wechseln</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Tresor: %1</translation>
    </message>
</context>
<context>
    <name>SafesDialog</name>
    <message>
        <source>Safes</source>
        <translation>Tresore</translation>
    </message>
    <message>
        <source>New safe</source>
        <translation>Neuer Tresor</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Make a safe from an archive or a backup</source>
        <translation>Aus einem Archiv oder einer Sicherung einen Tresor machen</translation>
    </message>
    <message>
        <source>Open the folder of a safe…</source>
        <translation>Ordner eines Tresors öffnen …</translation>
    </message>
    <message>
        <source>From cloud folder (%1)</source>
        <translation>Aus dem Cloud-Ordner (%1)</translation>
    </message>
    <message>
        <source>There is no safe yet. Make a new one, or import an archive.</source>
        <translation>Es gibt noch keinen Tresor. Legen Sie einen an oder importieren Sie ein Archiv.</translation>
    </message>
</context>
<context>
    <name>SaveLoginDialog</name>
    <message>
        <source>Save login</source>
        <translation>Login speichern</translation>
    </message>
    <message>
        <source>Never for this site</source>
        <translation>Nie für diese Website</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Masterpasswort</translation>
    </message>
    <message>
        <source>The login is in the safe now, but it could not be written to the disk. Check the free space and the permissions, then try again.</source>
        <translation>Das Login ist nun im Tresor, konnte aber nicht auf die Festplatte geschrieben werden. Prüfen Sie den freien Platz und die Rechte und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your safe is locked. Unlock it to save this login.</source>
        <translation>Ihr Tresor ist gesperrt. Entsperren Sie ihn, um dieses Login zu speichern.</translation>
    </message>
    <message>
        <source>Your safe has this login already, so there is nothing to save.</source>
        <translation>Ihr Tresor hat dieses Login schon; es gibt nichts zu speichern.</translation>
    </message>
    <message>
        <source>Already saved</source>
        <translation>Schon gespeichert</translation>
    </message>
    <message>
        <source>Update this login?</source>
        <translation>Dieses Login aktualisieren?</translation>
    </message>
    <message>
        <source>Save this login?</source>
        <translation>Dieses Login speichern?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Trotzdem entsperren</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Wird entsperrt …</translation>
    </message>
    <message numerus="yes">
        <source>What you typed is kept for %n more seconds, then forgotten.</source>
        <translation>
            <numerusform>Was Sie eingegeben haben, wird noch %n Sekunde behalten und dann vergessen.</numerusform>
            <numerusform>Was Sie eingegeben haben, wird noch %n Sekunden behalten und dann vergessen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no password to save. Type it in, or choose Not now.</source>
        <translation>Es gibt kein Passwort zu speichern. Geben Sie es ein oder wählen Sie „Jetzt nicht“.</translation>
    </message>
    <message>
        <source>That login is no longer in the safe. Choose again where to save.</source>
        <translation>Dieses Login ist nicht mehr im Tresor. Wählen Sie noch einmal, wo gespeichert werden soll.</translation>
    </message>
    <message>
        <source>The list of sites could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>Die Liste der Websites konnte nicht geschrieben werden. Prüfen Sie den freien Platz und die Rechte des Einstellungsordners.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>You declined logins of this site before. If you do so now, it is not offered again until you lock the safe.</source>
        <translation>Sie haben Logins dieser Website schon abgelehnt. Wenn Sie es jetzt wieder tun, wird nichts mehr angeboten, bis Sie den Tresor sperren.</translation>
    </message>
</context>
<context>
    <name>SaveLoginForm</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>A new login</source>
        <translation>Ein neues Login</translation>
    </message>
    <message>
        <source>Until now: %1</source>
        <translation>Bisher: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>favourite</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>favorit</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>papierkorb</translation>
    </message>
    <message>
        <source>weak</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>schwach</translation>
    </message>
    <message>
        <source>expired</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>abgelaufen</translation>
    </message>
    <message>
        <source>expiring</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>läuftab</translation>
    </message>
    <message>
        <source>kind</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>art</translation>
    </message>
    <message>
        <source>is</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>ist</translation>
    </message>
    <message>
        <source>Finds items with all the words in title, user name, address or note.
kind:card shows one kind of item.
is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.</source>
        <comment>with the words that are translated as parts of a search</comment>
        <translation>Findet Einträge mit allen Wörtern in Titel, Benutzername, Adresse oder Notiz.
art:kreditkarte zeigt eine Art von Einträgen.
ist:favorit, ist:schwach, ist:läuftab, ist:abgelaufen und ist:papierkorb zeigen Einträge nach ihrem Zustand.</translation>
    </message>
</context>
<context>
    <name>SecretInput</name>
    <message>
        <source>Generate password</source>
        <translation>Passwort erzeugen</translation>
    </message>
    <message>
        <source>Generate password (Ctrl+G)</source>
        <translation>Passwort erzeugen (Strg+G)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Copy to clipboard (Ctrl+C)</source>
        <translation>In die Zwischenablage kopieren (Strg+C)</translation>
    </message>
</context>
<context>
    <name>SecureWindow</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Änderungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Some changes could not be written; what was there before still is. Check that the folder of the safe can be written to and that there is free space, then try again:
%1</source>
        <translation>Manche Änderungen konnten nicht geschrieben werden; das Bisherige ist noch da. Prüfen Sie, ob in den Ordner des Tresors geschrieben werden kann und Platz frei ist, und versuchen Sie es dann erneut:
%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Lose changes</source>
        <translation>Änderungen aufgeben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation>
            <numerusform>%n Eintrag ausgewählt</numerusform>
            <numerusform>%n Einträge ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Aus den Favoriten nehmen</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu den Favoriten</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>keiner ausgewählt</translation>
    </message>
    <message>
        <source>%1: choose</source>
        <translation>%1: auswählen</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>No setting matches the search.</source>
        <translation>Keine Einstellung passt zur Suche.</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Everything in the program is shown in it, at once.</source>
        <translation>Alles im Programm wird sofort darin angezeigt.</translation>
    </message>
    <message>
        <source>The language was not changed.</source>
        <translation>Die Sprache wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>new version download</source>
        <translation>neue Version herunterladen Aktualisierung</translation>
    </message>
    <message>
        <source>Time until it locks</source>
        <translation>Zeit bis zum Sperren</translation>
    </message>
    <message>
        <source>How long neither keyboard nor mouse are used, in any program.</source>
        <translation>Wie lange weder Tastatur noch Maus benutzt werden, in irgendeinem Programm.</translation>
    </message>
    <message>
        <source>auto-lock idle minutes away</source>
        <translation>automatisch sperren untätig Minuten weg</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Lock after inactivity</source>
        <translation>Bei Untätigkeit sperren</translation>
    </message>
    <message>
        <source>The safe locks when you leave the computer alone.</source>
        <translation>Der Tresor wird gesperrt, wenn Sie den Computer allein lassen.</translation>
    </message>
    <message>
        <source>auto-lock idle away</source>
        <translation>automatisch sperren untätig weg</translation>
    </message>
    <message>
        <source>Lock when the screen saver starts</source>
        <translation>Beim Start des Bildschirmschoners sperren</translation>
    </message>
    <message>
        <source>The safe locks together with the screen.</source>
        <translation>Der Tresor wird zusammen mit dem Bildschirm gesperrt.</translation>
    </message>
    <message>
        <source>auto-lock</source>
        <translation>automatisch sperren</translation>
    </message>
    <message>
        <source>Clear copied values after 60 seconds</source>
        <translation>Kopierte Werte nach 60 Sekunden löschen</translation>
    </message>
    <message>
        <source>What you copied from the safe does not stay on the clipboard, where other programs can read it.</source>
        <translation>Was Sie aus dem Tresor kopiert haben, bleibt nicht in der Zwischenablage, wo andere Programme es lesen können.</translation>
    </message>
    <message>
        <source>clipboard copy password wipe</source>
        <translation>Zwischenablage kopieren Passwort löschen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Ausfüllen und absenden</translation>
    </message>
    <message>
        <source>Log in from the main window</source>
        <translation>Anmelden aus dem Hauptfenster</translation>
    </message>
    <message>
        <source>Whether the page&apos;s form is only filled or also sent. A login can have its own way.</source>
        <translation>Ob das Formular der Seite nur ausgefüllt oder auch abgesendet wird. Ein Login kann es anders halten.</translation>
    </message>
    <message>
        <source>automatic form enter</source>
        <translation>automatisch Formular Eingabe</translation>
    </message>
    <message>
        <source>Log in from the quick-access window</source>
        <translation>Anmelden aus dem Schnellzugriff</translation>
    </message>
    <message>
        <source>The same for logins that you choose while you are in the browser.</source>
        <translation>Dasselbe für Logins, die Sie im Browser auswählen.</translation>
    </message>
    <message>
        <source>automatic form enter extension plugin</source>
        <translation>automatisch Formular Eingabe Erweiterung Plugin</translation>
    </message>
    <message>
        <source>Open addresses in</source>
        <translation>Adressen öffnen in</translation>
    </message>
    <message>
        <source>Where the browser shows the page of a login that is not open yet.</source>
        <translation>Wo der Browser die Seite eines Logins zeigt, die noch nicht offen ist.</translation>
    </message>
    <message>
        <source>tab window extension plugin</source>
        <translation>Tab Fenster Erweiterung Plugin</translation>
    </message>
    <message>
        <source>The current tab</source>
        <translation>Aktueller Tab</translation>
    </message>
    <message>
        <source>A new tab</source>
        <translation>Neuer Tab</translation>
    </message>
    <message>
        <source>A new window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>A safe that has not changed since is not copied again.</source>
        <translation>Ein seitdem unveränderter Tresor wird nicht erneut kopiert.</translation>
    </message>
    <message>
        <source>interval how often</source>
        <translation>Abstand wie oft</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Folder for backups</source>
        <translation>Ordner für Sicherungen</translation>
    </message>
    <message>
        <source>Best on another disk. The copies are encrypted like the safe.</source>
        <translation>Am besten auf einer anderen Festplatte. Die Kopien sind verschlüsselt wie der Tresor.</translation>
    </message>
    <message>
        <source>path directory archive</source>
        <translation>Pfad Verzeichnis Archiv</translation>
    </message>
    <message>
        <source>Copies to keep</source>
        <translation>Aufbewahrte Kopien</translation>
    </message>
    <message>
        <source>Of each safe; when there are more, the oldest are deleted.</source>
        <translation>Von jedem Tresor; sind es mehr, werden die ältesten gelöscht.</translation>
    </message>
    <message>
        <source>number archives</source>
        <translation>Anzahl Archive</translation>
    </message>
    <message>
        <source>This folder cannot be written to: %1</source>
        <translation>In diesen Ordner kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Back up automatically</source>
        <translation>Automatisch sichern</translation>
    </message>
    <message>
        <source>Copies of all safes that open with their master password.</source>
        <translation>Kopien aller Tresore, die sich mit ihrem Masterpasswort öffnen.</translation>
    </message>
    <message>
        <source>archive copy</source>
        <translation>Archiv Kopie</translation>
    </message>
    <message>
        <source>Lock Safe hotkey:</source>
        <translation>Taste zum Sperren:</translation>
    </message>
    <message>
        <source>shortcut key combination</source>
        <translation>Tastenkürzel Tastenkombination</translation>
    </message>
    <message>
        <source>Browser plugin hotkey:</source>
        <translation>Taste für den Schnellzugriff:</translation>
    </message>
    <message>
        <source>Opens the quick-access window for the page in your browser.</source>
        <translation>Öffnet den Schnellzugriff für die Seite in Ihrem Browser.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Light or dark, always or as the system has it.</source>
        <translation>Hell oder dunkel, immer oder wie im System.</translation>
    </message>
    <message>
        <source>theme mode night appearance</source>
        <translation>Thema Modus Nacht Aussehen</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>Of all texts, with the controls around them.</source>
        <translation>Aller Texte, mit den Bedienelementen darum.</translation>
    </message>
    <message>
        <source>font large small zoom scale</source>
        <translation>Schrift groß klein Zoom Maßstab</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The text size was not changed.</source>
        <translation>Die Textgröße wurde nicht geändert.</translation>
    </message>
    <message>
        <source>No animations</source>
        <translation>Keine Animationen</translation>
    </message>
    <message>
        <source>When it is off, the system&apos;s setting for animations holds.</source>
        <translation>Ist es aus, gilt die Einstellung des Systems.</translation>
    </message>
    <message>
        <source>reduced motion effects</source>
        <translation>weniger Bewegung Effekte</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, but they could not be written to %1</source>
        <translation>Die Einstellungen gelten bis zum Programmende, konnten aber nicht nach %1 geschrieben werden</translation>
    </message>
    <message>
        <source>Locks the safe from any program; on Wayland, from this program&apos;s windows.</source>
        <translation>Sperrt den Tresor aus jedem Programm; unter Wayland aus den Fenstern dieses Programms.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Cloud-Ordner</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Masterpasswort</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Es öffnet diesen Tresor.</translation>
    </message>
    <message>
        <source>change hint</source>
        <translation>ändern Merkhilfe</translation>
    </message>
    <message>
        <source>Last backup</source>
        <translation>Letzte Sicherung</translation>
    </message>
    <message>
        <source>When each safe was backed up, and when that is done next.</source>
        <translation>Wann jeder Tresor gesichert wurde, und wann es wieder geschieht.</translation>
    </message>
    <message>
        <source>back up now restore archive</source>
        <translation>jetzt sichern wiederherstellen Archiv</translation>
    </message>
    <message>
        <source>Keeps safes the same on several computers.</source>
        <translation>Hält Tresore auf mehreren Computern gleich.</translation>
    </message>
    <message>
        <source>synchronise sync mirror share provider account computers</source>
        <translation>synchronisieren abgleichen spiegeln teilen Anbieter Konto Computer</translation>
    </message>
    <message>
        <source>Browsers and extensions</source>
        <translation>Browser und Erweiterungen</translation>
    </message>
    <message>
        <source>In which browsers the extension is, and which may connect.</source>
        <translation>In welchen Browsern die Erweiterung ist und welche sich verbinden dürfen.</translation>
    </message>
    <message>
        <source>plugin install approve connect chrome chromium firefox</source>
        <translation>plugin erweiterung installieren erlauben verbinden chrome chromium firefox</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Websites ohne Angebot</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Logins, die Sie dort eingeben, werden nicht zum Speichern angeboten.</translation>
    </message>
    <message>
        <source>never save login ask again</source>
        <translation>nie speichern login wieder fragen</translation>
    </message>
    <message>
        <source>Show the icons of web sites</source>
        <translation>Symbole von Websites zeigen</translation>
    </message>
    <message>
        <source>They are fetched from the sites of your logins and kept in the safe.</source>
        <translation>Sie werden von den Websites Ihrer Logins geladen und im Tresor aufbewahrt.</translation>
    </message>
    <message>
        <source>favicon logo picture download</source>
        <translation>favicon logo symbol bild herunterladen</translation>
    </message>
    <message>
        <source>The setting holds until the program ends, but it could not be stored.</source>
        <translation>Die Einstellung gilt, bis das Programm endet, konnte aber nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Asks once a day whether there is a newer version. Sent are your version and a number made for this computer, nothing else.</source>
        <translation>Fragt einmal am Tag, ob es eine neuere Version gibt. Gesendet werden Ihre Version und eine für diesen Computer gebildete Nummer, sonst nichts.</translation>
    </message>
    <message>
        <source>Newest version</source>
        <translation>Neueste Version</translation>
    </message>
    <message>
        <source>Which version there is, and when was last looked for it.</source>
        <translation>Welche Version es gibt und wann zuletzt danach gesehen wurde.</translation>
    </message>
    <message>
        <source>update check download</source>
        <translation>Aktualisierung Update Suche Download</translation>
    </message>
    <message>
        <source>Your desktop does not tell when you are away. The safe locks with the screen and when the computer sleeps.</source>
        <translation>Ihr Desktop verrät nicht, wann Sie weg sind. Der Tresor wird mit dem Bildschirm gesperrt und wenn der Computer in den Ruhezustand geht.</translation>
    </message>
    <message>
        <source>Hide the windows from screenshots</source>
        <translation>Fenster in Bildschirmfotos verbergen</translation>
    </message>
    <message>
        <source>What is in the safe appears in no recording and on no shared screen.</source>
        <translation>Was im Tresor ist, erscheint in keiner Aufnahme und auf keinem geteilten Bildschirm.</translation>
    </message>
    <message>
        <source>screen capture sharing meeting</source>
        <translation>Bildschirm Aufnahme Bildschirmfoto teilen Besprechung</translation>
    </message>
</context>
<context>
    <name>SetupWizard</name>
    <message>
        <source>Set up Glaceron Password Manager</source>
        <translation>Glaceron Password Manager einrichten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>ShortcutTable</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Into the list and back</source>
        <translation>In die Liste und zurück</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>Edit the item</source>
        <translation>Eintrag bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Leave the editor, or clear the search</source>
        <translation>Bearbeitung verlassen oder Suche leeren</translation>
    </message>
    <message>
        <source>Copy the user name</source>
        <translation>Benutzernamen kopieren</translation>
    </message>
    <message>
        <source>Copy the password, or the number of a card or document</source>
        <translation>Passwort kopieren, oder die Nummer einer Karte oder eines Dokuments</translation>
    </message>
    <message>
        <source>Attach the copied file to the item</source>
        <translation>Kopierte Datei an den Eintrag anhängen</translation>
    </message>
    <message>
        <source>Select all items</source>
        <translation>Alle Einträge auswählen</translation>
    </message>
    <message>
        <source>Select more items</source>
        <translation>Weitere Einträge auswählen</translation>
    </message>
    <message>
        <source>Menu of the items</source>
        <translation>Menü der Einträge</translation>
    </message>
    <message>
        <source>Remove the items</source>
        <translation>Einträge entfernen</translation>
    </message>
    <message>
        <source>Take the last removal back</source>
        <translation>Letztes Entfernen zurücknehmen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Lock the safe</source>
        <translation>Tresor sperren</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Diese Liste zeigen</translation>
    </message>
    <message>
        <source>Log in, or fill in a card or identity</source>
        <translation>Anmelden oder eine Karte oder Identität eintragen</translation>
    </message>
    <message>
        <source>Log in or fill in, from the list or the search</source>
        <translation>Anmelden oder eintragen, aus der Liste oder der Suche</translation>
    </message>
    <message>
        <source>Open the item, in a narrow window</source>
        <translation>Eintrag öffnen, in einem schmalen Fenster</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> oder </translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>Kein Browser mit der Erweiterung ist verbunden</translation>
    </message>
    <message>
        <source>What it was made for is no longer edited</source>
        <translation>Wofür es erzeugt wurde, wird nicht mehr bearbeitet</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Passwort ändern …</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Masterpasswort</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Es öffnet diesen Tresor.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Password generator</source>
        <translation>Passwortgenerator</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>%1 · unlocked</source>
        <translation>%1 · offen</translation>
    </message>
    <message>
        <source>Finish setting up</source>
        <translation>Einrichtung abschließen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>less than 1 KB</source>
        <translation>weniger als 1 KB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
</context>
<context>
    <name>SnackBar</name>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>SortButton</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Meistbenutzt</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Last changed</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortiert: %1</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>TrashBar</name>
    <message>
        <source>Restore all</source>
        <translation>Alle wiederherstellen</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open Main Window</source>
        <translation>Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Passwortgenerator</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Quick Access</source>
        <translation>Schnellzugriff</translation>
    </message>
</context>
<context>
    <name>UnlockLogic</name>
    <message>
        <source>This safe is not available. Check that its folder is there:
%1</source>
        <translation>Dieser Tresor ist nicht verfügbar. Prüfen Sie, ob sein Ordner da ist:
%1</translation>
    </message>
    <message>
        <source>No any safe is selected</source>
        <translation>Kein Tresor ist ausgewählt</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Falsches Passwort! Versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>The safe could not be read. Check that its folder is there and that you may read it, then try again.</source>
        <translation>Der Tresor konnte nicht gelesen werden. Prüfen Sie, ob sein Ordner da ist und Sie ihn lesen dürfen, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unlock your safe to go on</source>
        <translation>Entsperren Sie Ihren Tresor</translation>
    </message>
    <message>
        <source>This safe is on a drive that is not connected. Connect it, then choose the safe again:
%1</source>
        <translation>Dieser Tresor liegt auf einem Laufwerk, das nicht angeschlossen ist. Schließen Sie es an und wählen Sie den Tresor noch einmal:
%1</translation>
    </message>
    <message>
        <source>Another program on this computer has this safe open. What both change at the same time can get lost, so close it there first.</source>
        <translation>Ein anderes Programm auf diesem Computer hat diesen Tresor offen. Was beide gleichzeitig ändern, kann verloren gehen; schließen Sie ihn dort zuerst.</translation>
    </message>
    <message>
        <source>This safe is open on the computer “%1”, or was when that computer stopped. What both change at the same time can get lost, so close it there first.</source>
        <translation>Dieser Tresor ist auf dem Computer „%1“ offen, oder war es, als dieser anhielt. Was beide gleichzeitig ändern, kann verloren gehen; schließen Sie ihn dort zuerst.</translation>
    </message>
    <message>
        <source>This is the password from before it was changed. Use the new one.</source>
        <translation>Das ist das Passwort von vor der Änderung. Nehmen Sie das neue.</translation>
    </message>
    <message>
        <source>This is the password from before a change that was interrupted.</source>
        <translation>Das ist das Passwort von vor einer Änderung, die unterbrochen wurde.</translation>
    </message>
    <message>
        <source>This password was set on another computer. Unlock with the former one; then you are asked for this one.</source>
        <translation>Dieses Passwort wurde auf einem anderen Computer gesetzt. Öffnen Sie mit dem früheren; dann werden Sie nach diesem gefragt.</translation>
    </message>
    <message>
        <source>Looking for this safe. Its drive does not answer yet:
%1</source>
        <translation>Dieser Tresor wird gesucht. Sein Laufwerk antwortet noch nicht:
%1</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Show…</source>
        <translation>Anzeigen …</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message>
        <source>Show the new version</source>
        <translation>Die neue Version anzeigen</translation>
    </message>
    <message>
        <source>Check for a newer version now</source>
        <translation>Jetzt nach einer neueren Version suchen</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>Version %1 ist da</translation>
    </message>
    <message>
        <source>You have the newest version, %1</source>
        <translation>Sie haben die neueste Version, %1</translation>
    </message>
    <message>
        <source>You have version %1</source>
        <translation>Sie haben Version %1</translation>
    </message>
    <message>
        <source>This program was built without an address to ask for newer versions, so it never looks for them.</source>
        <translation>Dieses Programm wurde ohne eine Adresse gebaut, unter der es nach neueren Versionen fragen könnte, und sieht daher nie danach.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>There was no answer that could be used. Check the connection to the internet and try again.</source>
        <translation>Es kam keine brauchbare Antwort. Prüfen Sie die Verbindung zum Internet und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Zuletzt geprüft: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Noch nicht geprüft</translation>
    </message>
</context>
<context>
    <name>WindowMover</name>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
