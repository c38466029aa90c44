<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
<context>
    <name>ApprovalDesk</name>
    <message>
        <source>Let Firefox connect?</source>
        <translation>Autoriser Firefox à se connecter&#x202f;?</translation>
    </message>
    <message>
        <source>An extension in Firefox wants to connect to this program. If you allow it, it can fill your logins into pages and offer to save new ones.

Allow it if you have just added the extension to Firefox, or to another profile of it. If you do not know where this comes from, choose “Don&apos;t allow”.

You can change your mind in the settings, on the page “Browser”.</source>
        <translation>Une extension dans Firefox veut se connecter à ce programme. Si vous l’autorisez, elle peut remplir les pages avec vos identifiants et proposer d’en enregistrer de nouveaux.

Autorisez-la si vous venez d’ajouter l’extension à Firefox, ou à un autre de ses profils. Si vous ne savez pas d’où cela vient, choisissez «&#x202f;Ne pas autoriser&#x202f;».

Vous pouvez changer d’avis dans les paramètres, à la page «&#x202f;Navigateur&#x202f;».</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Don&apos;t allow</source>
        <translation>Ne pas autoriser</translation>
    </message>
</context>
<context>
    <name>ApprovalsPanel</name>
    <message>
        <source>None yet. When one wants to connect, you are asked.</source>
        <translation>Aucune pour l’instant. Si l’une d’elles veut se connecter, vous serez consulté.</translation>
    </message>
    <message>
        <source>Each Firefox profile gives the extension an id of its own, so you say which ones may connect.</source>
        <translation>Chaque profil Firefox donne à l’extension son propre ID&#xa0;: c’est vous qui dites lesquelles peuvent se connecter.</translation>
    </message>
    <message>
        <source>Extensions in Firefox</source>
        <translation>Extensions dans Firefox</translation>
    </message>
    <message>
        <source>%1: may connect</source>
        <translation>%1&#xa0;: connexion autorisée</translation>
    </message>
    <message>
        <source>%1: may not connect</source>
        <translation>%1&#xa0;: connexion non autorisée</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Autoriser %1</translation>
    </message>
</context>
<context>
    <name>ArchiveDesk</name>
    <message>
        <source>Export safe</source>
        <translation>Exporter le coffre</translation>
    </message>
    <message>
        <source>GPM file (*.gpm)</source>
        <translation>Fichier GPM (*.gpm)</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>Exportation de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>“%1” was not exported. %2</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas été exporté. %2</translation>
    </message>
    <message>
        <source>“%1” is exported. Everything in the file is encrypted; it opens with the master password of today:
%2</source>
        <translation>«&#x202f;%1&#x202f;» est exporté. Tout est chiffré dans le fichier&#x202f;; il s’ouvre avec le mot de passe maître actuel&#xa0;:
%2</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read and are not in it.</source>
        <translation>
            <numerusform>%n fichier n’a pas pu être lu et n’y figure pas.</numerusform>
            <numerusform>%n fichiers n’ont pas pu être lus et n’y figurent pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>Open GPM file on your computer</source>
        <translation>Ouvrir un fichier GPM de votre ordinateur</translation>
    </message>
    <message>
        <source>Import safe</source>
        <translation>Importer un coffre</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>Importation de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>Import from &quot;%1&quot; failed!</source>
        <translation>L’importation de «&#x202f;%1&#x202f;» a échoué&#x202f;!</translation>
    </message>
    <message>
        <source>“%1” is now in the list of your safes. It opens with the master password that it had when the file was made.</source>
        <translation>«&#x202f;%1&#x202f;» est maintenant dans la liste de vos coffres. Il s’ouvre avec le mot de passe maître qu’il avait à la création du fichier.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>L’ouvrir</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Restaurer une sauvegarde</translation>
    </message>
    <message>
        <source>Restoring “%1”…</source>
        <translation>Restauration de «&#x202f;%1&#x202f;»…</translation>
    </message>
</context>
<context>
    <name>AttachmentActions</name>
    <message>
        <source>Maximum attachment file size is %1 megabytes</source>
        <translation>Taille maximale d’une pièce jointe&#xa0;: %1 mégaoctets</translation>
    </message>
    <message>
        <source>This is no file, or it can not be read</source>
        <translation>Ce n’est pas un fichier, ou il est illisible</translation>
    </message>
    <message>
        <source>The folder of the safe is full or can not be written to</source>
        <translation>Le dossier du coffre est plein ou n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Choisissez un fichier</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Remove the copy now</source>
        <translation>Supprimer la copie</translation>
    </message>
    <message>
        <source>Its file is missing in the safe</source>
        <translation>Son fichier est absent du coffre</translation>
    </message>
    <message>
        <source>%1 · encrypted</source>
        <translation>%1 · chiffré</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Can&apos;t attach.</source>
        <translation>Impossible de joindre le fichier.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t read the attachment.</source>
        <translation>Impossible de lire la pièce jointe.</translation>
    </message>
    <message>
        <source>The file of %1 in the safe is missing or damaged. A backup may hold it undamaged.</source>
        <translation>Le fichier %1 est absent du coffre ou endommagé. Une sauvegarde en contient peut-être une version intacte.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Can&apos;t save the attachment.</source>
        <translation>Impossible d’enregistrer la pièce jointe.</translation>
    </message>
    <message>
        <source>%1 could not be written. Check the free space and the permissions there, or choose another place.</source>
        <translation>%1 n’a pas pu être écrit. Vérifiez l’espace libre et les droits d’accès à cet endroit, ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Non ouvert</translation>
    </message>
    <message>
        <source>%1 is a program, or can run one. It can be saved and looked at there.</source>
        <translation>%1 est un programme, ou peut en lancer un. Il est possible de l’enregistrer et de l’examiner ailleurs.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Can&apos;t open the attachment.</source>
        <translation>Impossible d’ouvrir la pièce jointe.</translation>
    </message>
    <message>
        <source>No private copy of %1 could be made. Check the free space, and whether the preview shows it.</source>
        <translation>Aucune copie privée n’a pu être créée pour %1. Vérifiez l’espace libre, et si l’aperçu l’affiche.</translation>
    </message>
    <message>
        <source>No program was found that opens %1. It can be saved instead.</source>
        <translation>Aucun programme capable d’ouvrir %1 n’a été trouvé. Il est possible de l’enregistrer à la place.</translation>
    </message>
    <message>
        <source>“%1” is open in another program.</source>
        <translation>«&#x202f;%1&#x202f;» est ouvert dans un autre programme.</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation>
            <numerusform>%n pièce jointe est ouverte dans un autre programme.</numerusform>
            <numerusform>%n pièces jointes sont ouvertes dans d’autres programmes.</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy lies readable in a private folder until the safe locks. It can not be written to: changes made there are not taken back into the safe. Save them under another name and attach that file.</source>
        <translation>Une copie lisible reste dans un dossier privé jusqu’au verrouillage du coffre. Elle est en lecture seule&#xa0;: les modifications qui y sont faites ne sont pas reprises dans le coffre. Enregistrez-les sous un autre nom et joignez ce fichier.</translation>
    </message>
    <message>
        <source>Can&apos;t remove the copy.</source>
        <translation>Impossible de supprimer la copie.</translation>
    </message>
    <message>
        <source>Another program may still hold it open. It is tried again when the safe locks.</source>
        <translation>Un autre programme l’utilise peut-être encore. Une nouvelle tentative aura lieu au verrouillage du coffre.</translation>
    </message>
</context>
<context>
    <name>AttachmentInput</name>
    <message>
        <source>Picture %1.png</source>
        <translation>Image %1.png</translation>
    </message>
</context>
<context>
    <name>AttachmentPreview</name>
    <message>
        <source>There is no preview for this kind of file.</source>
        <translation>Il n’y a pas d’aperçu pour ce type de fichier.</translation>
    </message>
    <message>
        <source>This is the beginning; save the file to see all of it.</source>
        <translation>Ceci n’est que le début&#x202f;; enregistrez le fichier pour tout voir.</translation>
    </message>
    <message>
        <source>Letters of one width</source>
        <translation>Police à chasse fixe</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Ouvrir dans un autre programme</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
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
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Ouvrir dans un autre programme</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
</context>
<context>
    <name>AttachmentsCard</name>
    <message>
        <source>Attach files…</source>
        <translation>Joindre un fichier…</translation>
    </message>
    <message>
        <source>Files and pictures can also be dropped here, or pasted with Ctrl+V</source>
        <translation>Vous pouvez aussi déposer ici des fichiers et des images, ou les coller avec Ctrl+V</translation>
    </message>
    <message>
        <source>Being encrypted…</source>
        <translation>Chiffrement en cours…</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Choisissez un fichier</translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation>Déposer pour joindre</translation>
    </message>
</context>
<context>
    <name>BackupRow</name>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurer une sauvegarde…</translation>
    </message>
    <message>
        <source>Backing up</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>There is no safe to back up yet.</source>
        <translation>Il n’y a pas encore de coffre à sauvegarder.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Sauvegarde en cours…</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Lecture des sauvegardes…</translation>
    </message>
    <message>
        <source>You can go on working.</source>
        <translation>Vous pouvez continuer à travailler.</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>today</source>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>demain</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>a day, a time of day</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Damaged, can&apos;t be restored · %1</source>
        <translation>Endommagée, ne peut pas être restaurée · %1</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Dernière sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Aucune sauvegarde</translation>
    </message>
    <message>
        <source>Automatic backups are off.</source>
        <translation>La sauvegarde automatique est désactivée.</translation>
    </message>
    <message>
        <source>Next backup: in a moment</source>
        <translation>Prochaine sauvegarde&#xa0;: dans un instant</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Prochaine sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>The folder for backups is not there. Connect its drive, or choose another folder.</source>
        <translation>Le dossier des sauvegardes est introuvable. Branchez son disque, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The folder for backups can&apos;t be written to. Choose another folder.</source>
        <translation>Le dossier des sauvegardes n’est pas accessible en écriture. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>%1: not there, or it can&apos;t be read</source>
        <translation>%1&#xa0;: introuvable ou illisible</translation>
    </message>
    <message>
        <source>%1: not backed up yet</source>
        <translation>%1&#xa0;: pas encore sauvegardé</translation>
    </message>
    <message>
        <source>%1: %2, unchanged since</source>
        <translation>%1&#xa0;: %2, inchangé depuis</translation>
    </message>
    <message>
        <source>%1: %2, changed since</source>
        <translation>%1&#xa0;: %2, modifié depuis</translation>
    </message>
    <message>
        <source>Backed up and checked: %1.</source>
        <translation>Sauvegarde faite et vérifiée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Unchanged since the last backup: %1.</source>
        <translation>Inchangé depuis la dernière sauvegarde&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Not backed up, as the folder is not there: %1. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Non sauvegardé, car le dossier est introuvable&#xa0;: %1. S’il se trouve sur un disque amovible, branchez celui-ci et réessayez.</translation>
    </message>
    <message>
        <source>Not yet backed up, as the password is being changed or it is being archived: %1. This is tried again in a minute.</source>
        <translation>Pas encore sauvegardé, car le mot de passe est en cours de changement ou l’archivage est en cours&#xa0;: %1. Nouvelle tentative dans une minute.</translation>
    </message>
    <message>
        <source>Cancelled: %1. Earlier backups are left as they are.</source>
        <translation>Annulé&#xa0;: %1. Les sauvegardes précédentes restent telles quelles.</translation>
    </message>
    <message>
        <source>Not backed up: “%1”. %2</source>
        <translation>Non sauvegardé&#xa0;: «&#x202f;%1&#x202f;». %2</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>1 item could not be read</source>
        <translation>1 élément n’a pas pu être lu</translation>
    </message>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation>
            <numerusform>%n élément n’a pas pu être lu</numerusform>
            <numerusform>%n éléments n’ont pas pu être lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation>
            <numerusform>et %n autre dans le même dossier</numerusform>
            <numerusform>et %n autres dans le même dossier</numerusform>
        </translation>
    </message>
    <message>
        <source>Their files were left as they are. A backup may hold them undamaged:
%1</source>
        <translation>Leurs fichiers ont été laissés tels quels. Une sauvegarde en contient peut-être des versions intactes&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>BusSessionWatch</name>
    <message>
        <source>Locking the safe</source>
        <translation>Verrouillage du coffre</translation>
    </message>
</context>
<context>
    <name>CapsIndicator</name>
    <message>
        <source>CAPS ON</source>
        <translation>MAJ ACTIVE</translation>
    </message>
    <message>
        <source>CAPS OFF</source>
        <translation>MAJ INACTIVE</translation>
    </message>
</context>
<context>
    <name>CardFace</name>
    <message>
        <source>Click to copy</source>
        <translation>Cliquer pour copier</translation>
    </message>
</context>
<context>
    <name>CategoryListView</name>
    <message>
        <source>Restore all</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vider la corbeille</translation>
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
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>Only you know it. It cannot be recovered.</source>
        <translation>Vous seul le connaissez. Il ne peut pas être récupéré.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>Old password:</source>
        <translation>Ancien mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Nouveau mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Confirm:</source>
        <translation>Confirmation&#xa0;:</translation>
    </message>
    <message>
        <source>Hint:</source>
        <translation>Indice&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ChangePasswordRules</name>
    <message>
        <source>Old password can not be empty</source>
        <translation>L’ancien mot de passe ne peut pas être vide</translation>
    </message>
    <message>
        <source>Old password is invalid. Try again</source>
        <translation>Ancien mot de passe incorrect. Réessayez</translation>
    </message>
    <message>
        <source>New password can not be empty</source>
        <translation>Le nouveau mot de passe ne peut pas être vide</translation>
    </message>
    <message>
        <source>New password can not be the same as the old password</source>
        <translation>Le nouveau mot de passe doit être différent de l’ancien</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>La confirmation ne peut pas être vide</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>L’indice ne peut pas être vide</translation>
    </message>
    <message>
        <source>“%1” has its new password. From now on only that one opens it. Backups made before still open with the old one.</source>
        <translation>«&#x202f;%1&#x202f;» a son nouveau mot de passe. Désormais, lui seul l’ouvre. Les sauvegardes antérieures s’ouvrent encore avec l’ancien.</translation>
    </message>
    <message>
        <source>The password was not changed. The old one still opens “%1”.</source>
        <translation>Le mot de passe n’a pas été changé. L’ancien ouvre toujours «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>“%1” was locked before the change was done. The old password still opens it.</source>
        <translation>«&#x202f;%1&#x202f;» s’est verrouillé avant la fin du changement. L’ancien mot de passe l’ouvre toujours.</translation>
    </message>
    <message>
        <source>The password was not changed: another program is using the safe. The old one still opens it. Wait until the other program is done, then try again.</source>
        <translation>Le mot de passe n’a pas été changé&#xa0;: un autre programme utilise le coffre. L’ancien l’ouvre toujours. Attendez que cet autre programme ait terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>The password was not changed: some files of the safe do not open, and under a new password they would be lost. The old one still opens the safe. Bring these files back from a backup or move them out of the folder of the safe, then try again.</source>
        <translation>Le mot de passe n’a pas été changé&#xa0;: certains fichiers du coffre ne s’ouvrent pas et seraient perdus sous un nouveau mot de passe. L’ancien ouvre toujours le coffre. Récupérez ces fichiers depuis une sauvegarde ou sortez-les du dossier du coffre, puis réessayez.</translation>
    </message>
    <message>
        <source>The password was not changed: the files of the safe could not be written. The old one still opens it. Check the free space and that the folder of the safe can be written to, then try again.</source>
        <translation>Le mot de passe n’a pas été changé&#xa0;: les fichiers du coffre n’ont pas pu être écrits. L’ancien l’ouvre toujours. Vérifiez l’espace libre et que le dossier du coffre est accessible en écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens the safe, but perhaps not every item; this old one still opens them all.</source>
        <translation>Un changement du mot de passe de «&#x202f;%1&#x202f;» a été interrompu. Le nouveau mot de passe ouvre le coffre, mais peut-être pas tous les éléments&#x202f;; cet ancien les ouvre encore tous.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens %2 of %3 items; the old one still opens those that were there before. Change nothing now: it would be missing when you go back.</source>
        <translation>Un changement du mot de passe de «&#x202f;%1&#x202f;» a été interrompu. Le nouveau mot de passe ouvre %2 éléments sur %3&#x202f;; l’ancien ouvre encore ceux d’avant. Ne modifiez rien pour l’instant&#xa0;: cela manquerait à votre retour à l’ancien.</translation>
    </message>
    <message>
        <source>To go back to the old password, quit the program and open the folder of the safe. Keep a copy of “safe.passid” in another place. Then copy “safe.passid.bak” over “safe.passid”: every item opens with the old password again, and you can change it anew.</source>
        <translation>Pour revenir à l’ancien mot de passe, quittez le programme et ouvrez le dossier du coffre. Gardez une copie de «&#x202f;safe.passid&#x202f;» à un autre endroit. Copiez ensuite «&#x202f;safe.passid.bak&#x202f;» par-dessus «&#x202f;safe.passid&#x202f;»&#xa0;: chaque élément s’ouvre de nouveau avec l’ancien mot de passe, et vous pouvez recommencer le changement.</translation>
    </message>
    <message>
        <source>The change of the password was stopped before it was done, as “%1” had to be saved at once. The old password still opens it. You can change it anew.</source>
        <translation>Le changement de mot de passe a été arrêté avant la fin, car « %1 » devait être enregistré aussitôt. L’ancien mot de passe l’ouvre toujours. Vous pouvez recommencer.</translation>
    </message>
    <message>
        <source>This new password was not taken: another change of the password is still under way. Wait until it is done, then try again.</source>
        <translation>Ce nouveau mot de passe n’a pas été pris : un autre changement de mot de passe est encore en cours. Attendez qu’il soit terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>L’indice trahit le mot de passe</translation>
    </message>
</context>
<context>
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Non précisé</translation>
    </message>
</context>
<context>
    <name>CloudDesk</name>
    <message>
        <source>The copy in the cloud folder is still there.</source>
        <translation>La copie dans le dossier cloud est toujours là.</translation>
    </message>
    <message>
        <source>Some of its files could not be removed. Remove the folder yourself if you do not need it:
%1</source>
        <translation>Certains de ses fichiers n’ont pas pu être supprimés. Supprimez vous-même le dossier si vous n’en avez pas besoin&#xa0;:
%1</translation>
    </message>
    <message>
        <source>From the cloud folder</source>
        <translation>Depuis le dossier cloud</translation>
    </message>
    <message>
        <source>Bringing “%1” over…</source>
        <translation>Récupération de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>“%1” is on this computer now, and is kept the same as on your other computers. It opens with its own master password.</source>
        <translation>«&#x202f;%1&#x202f;» est maintenant sur cet ordinateur, et reste identique à celui de vos autres ordinateurs. Il s’ouvre avec son propre mot de passe maître.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>L’ouvrir</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise with the cloud folder.</source>
        <translation>Impossible de synchroniser avec le dossier cloud.</translation>
    </message>
</context>
<context>
    <name>CloudImportDialog</name>
    <message>
        <source>From the cloud folder</source>
        <translation>Depuis le dossier cloud</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Autre dossier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Bring over</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Safes in the cloud folder</source>
        <translation>Coffres du dossier cloud</translation>
    </message>
    <message>
        <source>No other safe found</source>
        <translation>Aucun autre coffre trouvé</translation>
    </message>
    <message>
        <source>Safes that you synchronise on another computer appear here as soon as your cloud program has brought them.</source>
        <translation>Les coffres que vous synchronisez sur un autre ordinateur apparaissent ici dès que votre programme cloud les a apportés.</translation>
    </message>
    <message>
        <source>These safes are synchronised by another computer. Bring one over to use it here, too; it opens with its own master password.</source>
        <translation>Ces coffres sont synchronisés par un autre ordinateur. Récupérez-en un pour l’utiliser aussi ici&#x202f;; il s’ouvre avec son propre mot de passe maître.</translation>
    </message>
    <message>
        <source>%1
made on %2</source>
        <translation>%1
créé le %2</translation>
    </message>
</context>
<context>
    <name>CloudOffer</name>
    <message>
        <source>Bring it over…</source>
        <translation>Le récupérer…</translation>
    </message>
    <message>
        <source>You have a safe in your cloud folder: “%1”.</source>
        <translation>Vous avez un coffre dans votre dossier cloud&#xa0;: «&#x202f;%1&#x202f;».</translation>
    </message>
    <message numerus="yes">
        <source>You have %n safes in your cloud folder.</source>
        <translation>
            <numerusform>Vous avez %n coffre dans votre dossier cloud.</numerusform>
            <numerusform>Vous avez %n coffres dans votre dossier cloud.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloudPanel</name>
    <message>
        <source>No folder of a cloud provider was found. Choose the one that yours keeps the same on all computers, or a folder on a USB stick.</source>
        <translation>Aucun dossier de fournisseur cloud n’a été trouvé. Choisissez celui que le vôtre garde identique sur tous les ordinateurs, ou un dossier sur une clé USB.</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Autre dossier…</translation>
    </message>
    <message>
        <source>There is no safe yet.</source>
        <translation>Il n’y a pas encore de coffre.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Dossier cloud</translation>
    </message>
    <message>
        <source>A synchronised safe has an encrypted copy in a folder that your cloud provider carries to your other computers. What you change on one arrives on all.</source>
        <translation>Un coffre synchronisé a une copie chiffrée dans un dossier que votre fournisseur cloud transporte vers vos autres ordinateurs. Ce que vous modifiez sur l’un arrive sur tous.</translation>
    </message>
    <message>
        <source>Personal account: %1</source>
        <translation>Compte personnel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Business account: %1</source>
        <translation>Compte professionnel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bring over “%1”…</source>
        <translation>Récupérer «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>Bring over a safe (%1)…</source>
        <translation>Récupérer un coffre (%1)…</translation>
    </message>
    <message>
        <source>Choose a folder first.</source>
        <translation>Choisissez d’abord un dossier.</translation>
    </message>
    <message>
        <source>Stop synchronising “%1”?</source>
        <translation>Ne plus synchroniser «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>The safe on this computer stays as it is. Its copy in the cloud folder can stay for your other computers, or be removed; then they can&apos;t synchronise any more.</source>
        <translation>Le coffre sur cet ordinateur reste tel quel. Sa copie dans le dossier cloud peut rester pour vos autres ordinateurs, ou être supprimée&#x202f;; ils ne pourront alors plus synchroniser.</translation>
    </message>
    <message>
        <source>Keep the copy</source>
        <translation>Garder la copie</translation>
    </message>
    <message>
        <source>Remove the copy</source>
        <translation>Supprimer la copie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CloudPasswordDialog</name>
    <message>
        <source>New master password</source>
        <translation>Nouveau mot de passe maître</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Go on with it</source>
        <translation>Continuer avec celui-ci</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>The password of “%1” was changed on another computer. Enter the new one to go on synchronising; from then on the safe opens with it here, too.</source>
        <translation>Le mot de passe de «&#x202f;%1&#x202f;» a été changé sur un autre ordinateur. Saisissez le nouveau pour continuer à synchroniser&#x202f;; dès lors, c’est lui qui ouvre le coffre ici aussi.</translation>
    </message>
</context>
<context>
    <name>CloudSafeRow</name>
    <message>
        <source>Synchronise now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Enter the new password…</source>
        <translation>Saisir le nouveau mot de passe…</translation>
    </message>
    <message>
        <source>Synchronise “%1”</source>
        <translation>Synchroniser «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Only on this computer</source>
        <translation>Seulement sur cet ordinateur</translation>
    </message>
</context>
<context>
    <name>CloudTexts</name>
    <message>
        <source>Synchronised</source>
        <translation>Synchronisé</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Synchronisation…</translation>
    </message>
    <message>
        <source>Waiting for files</source>
        <translation>Attente de fichiers</translation>
    </message>
    <message>
        <source>Waiting…</source>
        <translation>En attente…</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>No cloud folder</source>
        <translation>Dossier cloud absent</translation>
    </message>
    <message>
        <source>Wrong folder</source>
        <translation>Mauvais dossier</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise</source>
        <translation>Synchro impossible</translation>
    </message>
    <message>
        <source>Synchronised %1</source>
        <translation>Synchronisé %1</translation>
    </message>
    <message>
        <source>Synchronises when the safe is open</source>
        <translation>Se synchronise quand le coffre est ouvert</translation>
    </message>
    <message>
        <source>Synchronising, %1 of %2</source>
        <translation>Synchronisation, %1 sur %2</translation>
    </message>
    <message>
        <source>Waiting for files to arrive</source>
        <translation>En attente de fichiers</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n files to arrive</source>
        <translation>
            <numerusform>En attente de %n fichier</numerusform>
            <numerusform>En attente de %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Waits until the safe is free</source>
        <translation>Attend que le coffre soit libre</translation>
    </message>
    <message>
        <source>The password was changed on another computer</source>
        <translation>Le mot de passe a été changé sur un autre ordinateur</translation>
    </message>
    <message>
        <source>The cloud folder is not there</source>
        <translation>Le dossier cloud est introuvable</translation>
    </message>
    <message>
        <source>The cloud folder holds another safe</source>
        <translation>Le dossier cloud contient un autre coffre</translation>
    </message>
    <message>
        <source>The cloud folder can&apos;t be written to</source>
        <translation>Le dossier cloud n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>The folder of the safe can&apos;t be written to</source>
        <translation>Le dossier du coffre n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them.</source>
        <translation>La suite est automatique dès que votre programme cloud les a apportés.</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them: %1</source>
        <translation>La suite est automatique dès que votre programme cloud les a apportés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The safe is being archived, or its password is being changed.</source>
        <translation>Le coffre est en cours d’archivage, ou son mot de passe en cours de changement.</translation>
    </message>
    <message>
        <source>Enter the new password, and this computer goes on with it.</source>
        <translation>Saisissez le nouveau mot de passe, et cet ordinateur continue avec lui.</translation>
    </message>
    <message>
        <source>If it is on a drive that can be taken out, connect the drive. If it was moved, turn synchronising off and on again. Nothing is lost in the meantime.
%1</source>
        <translation>S’il se trouve sur un disque amovible, branchez celui-ci. S’il a été déplacé, désactivez puis réactivez la synchronisation. Rien n’est perdu entre-temps.
%1</translation>
    </message>
    <message>
        <source>Nothing was read or changed there. Turn synchronising off and on again to choose another folder.
%1</source>
        <translation>Rien n’y a été lu ni modifié. Désactivez puis réactivez la synchronisation pour choisir un autre dossier.
%1</translation>
    </message>
    <message>
        <source>Your changes are in the safe on this computer, but not in the cloud folder. Check the free space and that you may write there; it is tried again every minute.
%1</source>
        <translation>Vos modifications sont dans le coffre sur cet ordinateur, mais pas dans le dossier cloud. Vérifiez l’espace libre et que vous avez le droit d’y écrire&#x202f;; une nouvelle tentative a lieu chaque minute.
%1</translation>
    </message>
    <message>
        <source>Changes of your other computers could not be taken over. Check the free space and that you may write to the folder of the safe; it is tried again every minute.</source>
        <translation>Les modifications de vos autres ordinateurs n’ont pas pu être reprises. Vérifiez l’espace libre et que vous avez le droit d’écrire dans le dossier du coffre&#x202f;; une nouvelle tentative a lieu chaque minute.</translation>
    </message>
    <message>
        <source>This folder is not there: %1</source>
        <translation>Ce dossier est introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>This folder is part of the safe itself. Choose the folder of your cloud provider, or one on another drive.</source>
        <translation>Ce dossier fait partie du coffre lui-même. Choisissez le dossier de votre fournisseur cloud, ou un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>The safe itself lies in this folder. Choose a folder that does not hold it.</source>
        <translation>Le coffre lui-même se trouve dans ce dossier. Choisissez un dossier qui ne le contient pas.</translation>
    </message>
    <message>
        <source>Your backups are kept in this folder. Choose another one.</source>
        <translation>Vos sauvegardes sont conservées dans ce dossier. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This folder belongs to another safe. Choose another one.</source>
        <translation>Ce dossier appartient à un autre coffre. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This folder belongs to the safe “%1”. Choose another one.</source>
        <translation>Ce dossier appartient au coffre «&#x202f;%1&#x202f;». Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Another copy of this safe on this computer is synchronised there already. Turn that off first, or choose another folder.</source>
        <translation>Une autre copie de ce coffre sur cet ordinateur y est déjà synchronisée. Désactivez d’abord cette synchronisation, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be written to. Check the free space and that you may write there: %1</source>
        <translation>Ce dossier n’est pas accessible en écriture. Vérifiez l’espace libre et que vous avez le droit d’y écrire&#xa0;: %1</translation>
    </message>
    <message>
        <source>This is not the password that was set on the other computer. Try again.</source>
        <translation>Ce n’est pas le mot de passe défini sur l’autre ordinateur. Réessayez.</translation>
    </message>
    <message>
        <source>The safe is busy with something else, such as a backup. Try again in a moment.</source>
        <translation>Le coffre est occupé à autre chose, par exemple une sauvegarde. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The safe on this computer could not be changed; it is as it was. Check the free space, and that every item of the safe can be read, then try again.</source>
        <translation>Le coffre sur cet ordinateur n’a pas pu être modifié&#x202f;; il est tel qu’il était. Vérifiez l’espace libre et que chaque élément du coffre est lisible, puis réessayez.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Impossible d’écrire le coffre. Vérifiez l’espace libre et que vous avez le droit d’écrire dans le dossier de vos coffres.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>L’importation d’un autre coffre est en cours. Réessayez ensuite.</translation>
    </message>
    <message>
        <source>The safe in the cloud folder can&apos;t be read. It may not have arrived whole yet; wait until your cloud program is done, and try again.</source>
        <translation>Le coffre du dossier cloud est illisible. Il n’est peut-être pas encore arrivé en entier&#x202f;; attendez que votre programme cloud ait terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>One item came from the cloud folder</source>
        <translation>Un élément est arrivé du dossier cloud</translation>
    </message>
    <message numerus="yes">
        <source>%n items came from the cloud folder</source>
        <translation>
            <numerusform>%n élément est arrivé du dossier cloud</numerusform>
            <numerusform>%n éléments sont arrivés du dossier cloud</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was deleted on another computer</source>
        <translation>Un élément a été supprimé sur un autre ordinateur</translation>
    </message>
    <message numerus="yes">
        <source>%n items were deleted on another computer</source>
        <translation>
            <numerusform>%n élément a été supprimé sur un autre ordinateur</numerusform>
            <numerusform>%n éléments ont été supprimés sur un autre ordinateur</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyNotice</name>
    <message>
        <source>Value copied to clipboard</source>
        <translation>Valeur copiée dans le presse-papiers</translation>
    </message>
    <message>
        <source>clears in %1 s</source>
        <translation>effacée dans %1&#xa0;s</translation>
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
        <translation>Afficher tous les pays</translation>
    </message>
    <message>
        <source>Show all countries (Alt+Down)</source>
        <translation>Afficher tous les pays (Alt+Bas)</translation>
    </message>
</context>
<context>
    <name>CreateSafeForm</name>
    <message>
        <source>New Safe name</source>
        <translation>Nom du nouveau coffre</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Create safe failed!</source>
        <translation>La création du coffre a échoué&#x202f;!</translation>
    </message>
    <message>
        <source>A safe needs an empty folder that you may write to. This one is not:
%1</source>
        <translation>Un coffre a besoin d’un dossier vide où vous avez le droit d’écrire. Celui-ci ne convient pas&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>CreateSafePage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Créer un coffre</translation>
    </message>
    <message>
        <source>Only you know its password. It cannot be recovered.</source>
        <translation>Son mot de passe n’est connu que de vous. Il ne peut pas être récupéré.</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Vous n’avez pas encore de coffre
En créer un&#x202f;?</translation>
    </message>
    <message>
        <source>Create
another one?</source>
        <translation>En créer
un autre&#x202f;?</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurer une sauvegarde…</translation>
    </message>
    <message>
        <source>Import from an archive…</source>
        <translation>Importer une archive…</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Dans %1</translation>
    </message>
    <message>
        <source>Kept with your other safes</source>
        <translation>Avec vos autres coffres</translation>
    </message>
    <message>
        <source>Usual place</source>
        <translation>Lieu habituel</translation>
    </message>
    <message>
        <source>Keep the safe in the usual place</source>
        <translation>Garder le coffre au lieu habituel</translation>
    </message>
    <message>
        <source>Choose the folder of the safe…</source>
        <translation>Choisir le dossier du coffre…</translation>
    </message>
</context>
<context>
    <name>CreateSafeRules</name>
    <message>
        <source>Safe name can not be empty</source>
        <translation>Le nom du coffre ne peut pas être vide</translation>
    </message>
    <message>
        <source>Password can not be empty</source>
        <translation>Le mot de passe ne peut pas être vide</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>La confirmation ne peut pas être vide</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>L’indice ne peut pas être vide</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>L’indice trahit le mot de passe</translation>
    </message>
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
</context>
<context>
    <name>DeleteSafeDialog</name>
    <message>
        <source>Delete safe</source>
        <translation>Supprimer le coffre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>Supprimer définitivement «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups stay.</source>
        <translation>Tout son contenu disparaîtra de cet ordinateur. Ses sauvegardes restent.</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups and its copy in the cloud folder stay.</source>
        <translation>Tout son contenu disparaîtra de cet ordinateur. Ses sauvegardes et sa copie dans le dossier cloud restent.</translation>
    </message>
    <message>
        <source>Master password of this safe</source>
        <translation>Mot de passe maître de ce coffre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Mot de passe incorrect&#x202f;! Réessayez</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>Can&apos;t keep the edit.</source>
        <translation>Impossible de conserver la saisie.</translation>
    </message>
    <message>
        <source>What you were typing could not be kept, as its file could not be written. Check the free space and the permissions of the program&apos;s data folder.</source>
        <translation>Ce que vous saisissiez n’a pas pu être conservé, car son fichier n’a pas pu être écrit. Vérifiez l’espace libre et les droits d’accès au dossier de données du programme.</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>an item without a title</source>
        <translation>un élément sans titre</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Poursuivre la saisie</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>You were adding %1 when the safe locked.</source>
        <translation>Vous ajoutiez %1 lorsque le coffre s’est verrouillé.</translation>
    </message>
    <message>
        <source>You were editing %1 when the safe locked.</source>
        <translation>Vous modifiiez %1 lorsque le coffre s’est verrouillé.</translation>
    </message>
    <message>
        <source>What you had typed was kept, encrypted, and is not saved yet.</source>
        <translation>Votre saisie a été conservée, chiffrée, mais n’est pas encore enregistrée.</translation>
    </message>
    <message>
        <source>The item was deleted meanwhile. What you had typed can become a new item.</source>
        <translation>Entre-temps, l’élément a été supprimé. Votre saisie peut devenir un nouvel élément.</translation>
    </message>
    <message>
        <source>The item is in the trash now. What you had typed was kept.</source>
        <translation>L’élément est maintenant dans la corbeille. Votre saisie a été conservée.</translation>
    </message>
    <message>
        <source>The item was changed meanwhile. What you had typed was kept.</source>
        <translation>Entre-temps, l’élément a été modifié. Votre saisie a été conservée.</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Supprimer le fichier</translation>
    </message>
    <message>
        <source>An edit that was kept could not be read.</source>
        <translation>Une saisie conservée n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>Its file is damaged or belongs to another password, and was left as it is:
%1</source>
        <translation>Son fichier est endommagé ou dépend d’un autre mot de passe&#x202f;; il a été laissé tel quel&#xa0;:
%1</translation>
    </message>
    <message>
        <source>%1 is in the trash. What would you like to do with what you had typed?</source>
        <translation>Entre-temps, %1 a été mis à la corbeille. Que souhaitez-vous faire de votre saisie&#x202f;?</translation>
    </message>
    <message>
        <source>%1 was changed after you had begun. What would you like to do with what you had typed?</source>
        <translation>Entre-temps, %1 a été modifié. Que souhaitez-vous faire de votre saisie&#x202f;?</translation>
    </message>
    <message>
        <source>Continue as a new item</source>
        <translation>Créer un nouvel élément</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Replace the change</source>
        <translation>Remplacer la modification</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Do you want to discard what you had typed about %1?
It can not be restored.</source>
        <translation>Abandonner votre saisie concernant %1&#x202f;?
Elle ne pourra pas être restaurée.</translation>
    </message>
</context>
<context>
    <name>ExcludedSitesPanel</name>
    <message>
        <source>None. “Never for this site” puts one here.</source>
        <translation>Aucun. «&#x202f;Jamais pour ce site&#x202f;» en ajoute un ici.</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Demander à nouveau</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Sites sans proposition d’enregistrement</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Il n’est pas proposé d’enregistrer les identifiants que vous y saisissez.</translation>
    </message>
    <message>
        <source>The list could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>La liste n’a pas pu être écrite. Vérifiez l’espace libre et les droits d’accès au dossier des paramètres.</translation>
    </message>
</context>
<context>
    <name>ExpiryText</name>
    <message>
        <source>Expired</source>
        <translation>Expiré</translation>
    </message>
    <message>
        <source>Expires today</source>
        <translation>Expire aujourd’hui</translation>
    </message>
    <message>
        <source>Expires in 1 day</source>
        <translation>Expire dans 1&#xa0;jour</translation>
    </message>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation>
            <numerusform>Expire dans %n&#xa0;jour</numerusform>
            <numerusform>Expire dans %n&#xa0;jours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The folder of the safe is not there. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Le dossier du coffre est introuvable. S’il se trouve sur un disque amovible, branchez celui-ci et réessayez.</translation>
    </message>
    <message>
        <source>There is no safe in the folder any more.</source>
        <translation>Il n’y a plus de coffre dans ce dossier.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed, or it is being archived already. Try again when that is done.</source>
        <translation>Le mot de passe du coffre est en cours de changement, ou le coffre est déjà en cours d’archivage. Réessayez ensuite.</translation>
    </message>
    <message>
        <source>Some of the safe&apos;s files can&apos;t be read. Check that its folder is there and that you may read and write it.</source>
        <translation>Certains fichiers du coffre sont illisibles. Vérifiez que son dossier est présent et que vous avez le droit d’y lire et d’y écrire.</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written. Check the free space and that you may write to its folder, or choose another one.</source>
        <translation>Impossible d’écrire l’archive. Vérifiez l’espace libre et que vous avez le droit d’écrire dans son dossier, ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The safe holds more than the 4 GiB that fit into an archive. Copy its folder instead, or take out large attachments.</source>
        <translation>Le coffre dépasse les 4&#xa0;Gio que peut contenir une archive. Copiez plutôt son dossier, ou retirez-en les grosses pièces jointes.</translation>
    </message>
    <message>
        <source>The archive could not be read back after it was written, and was removed. Choose a folder on another drive.</source>
        <translation>L’archive n’a pas pu être relue après son écriture et a été supprimée. Choisissez un dossier sur un autre disque.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</source>
        <translation>
            <numerusform>%n élément est maintenant dans «&#x202f;%1&#x202f;». Quiconque ouvre le fichier peut le lire&#xa0;: supprimez le fichier dès qu’il a servi.</numerusform>
            <numerusform>%n éléments sont maintenant dans «&#x202f;%1&#x202f;». Quiconque ouvre le fichier peut les lire&#xa0;: supprimez-le dès qu’il a servi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file cannot be written, and nothing of it is left. Check the free space and the permissions, or choose another folder:
%1</source>
        <translation>Le fichier n’a pas pu être écrit, et il n’en reste rien. Vérifiez l’espace libre et les droits d’accès, ou choisissez un autre dossier&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The safe was locked before the file was written. Nothing of it is left.</source>
        <translation>Le coffre s’est verrouillé avant l’écriture du fichier. Il n’en reste rien.</translation>
    </message>
    <message>
        <source>Export items</source>
        <translation>Exporter des éléments</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Contenu</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected items</source>
        <translation>
            <numerusform>%n élément sélectionné</numerusform>
            <numerusform>Les %n éléments sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>All items of the safe (%1)</source>
        <translation>Tous les éléments du coffre (%1)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>JSON: everything, for another safe</source>
        <translation>JSON&#xa0;: tout, pour un autre coffre</translation>
    </message>
    <message>
        <source>CSV: logins, for browsers and other programs</source>
        <translation>CSV&#xa0;: identifiants, pour navigateurs et autres programmes</translation>
    </message>
    <message>
        <source>Password of the safe</source>
        <translation>Mot de passe du coffre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Password of the safe “%1”</source>
        <translation>Mot de passe du coffre «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>The file is not encrypted: everyone who gets hold of it can read your passwords. Do not leave it lying, nor in a folder that is synchronised, and delete it as soon as it has served.</source>
        <translation>Le fichier n’est pas chiffré&#xa0;: quiconque l’obtient peut lire vos mots de passe. Ne le laissez pas traîner, ni séjourner dans un dossier synchronisé, et supprimez-le dès qu’il a servi.</translation>
    </message>
    <message numerus="yes">
        <source>%n items that are no logins are left out.</source>
        <translation>
            <numerusform>%n élément hors identifiants est laissé de côté.</numerusform>
            <numerusform>%n éléments hors identifiants sont laissés de côté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are left out. An archive of the safe holds them.</source>
        <translation>
            <numerusform>%n pièce jointe est laissée de côté. Une archive du coffre la contient.</numerusform>
            <numerusform>%n pièces jointes sont laissées de côté. Une archive du coffre les contient.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password of the safe.</source>
        <translation>Ce n’est pas le mot de passe du coffre.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
</context>
<context>
    <name>ExtensionPage</name>
    <message>
        <source>You can install plugin later from application Settings window</source>
        <translation>Vous pourrez installer l’extension plus tard, depuis la fenêtre Paramètres du programme</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>%1, hidden</source>
        <translation>%1, masqué</translation>
    </message>
    <message>
        <source>View text under dots</source>
        <translation>Afficher le texte masqué</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Ouvrir dans le navigateur</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copy to clipboard: %1</source>
        <translation>Copier dans le presse-papiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Click to copy</source>
        <translation>Cliquer pour copier</translation>
    </message>
    <message>
        <source>Generate password</source>
        <translation>Générer un mot de passe</translation>
    </message>
    <message>
        <source>Change: %1</source>
        <translation>Modifier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FieldRules</name>
    <message>
        <source>Required field is empty</source>
        <translation>Ce champ obligatoire est vide</translation>
    </message>
    <message>
        <source>Url is invalid</source>
        <translation>URL non valide</translation>
    </message>
    <message>
        <source>Please use 4-digit value</source>
        <translation>Saisissez 4 chiffres</translation>
    </message>
    <message>
        <source>Please use 3-digit value</source>
        <translation>Saisissez 3 chiffres</translation>
    </message>
    <message>
        <source>Correct value is up to 26 characters in range A-Z including spaces</source>
        <translation>26 caractères au plus, de A à Z, espaces compris</translation>
    </message>
    <message>
        <source>Incorrect card number</source>
        <translation>Numéro de carte incorrect</translation>
    </message>
    <message>
        <source>“%1” is not a complete address</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une adresse complète</translation>
    </message>
    <message>
        <source>“%1” is not a country code</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un indicatif de pays</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un nombre</translation>
    </message>
    <message>
        <source>“%1” is not a date</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une date</translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message>
        <source>The same password as %1</source>
        <translation>Même mot de passe&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation>
            <numerusform>Même mot de passe&#xa0;: %1 et %n autre</numerusform>
            <numerusform>Même mot de passe&#xa0;: %1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Nothing changed since %1</source>
        <translation>Inchangé depuis le %1</translation>
    </message>
    <message>
        <source>The address begins with http: others can read along</source>
        <translation>L’adresse commence par http&#xa0;: d’autres peuvent lire les échanges</translation>
    </message>
    <message>
        <source>Stop ignoring</source>
        <translation>Ne plus ignorer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Change it…</source>
        <translation>Changer…</translation>
    </message>
    <message>
        <source>Open the site&apos;s page for a new password</source>
        <translation>Ouvrir la page du site pour changer de mot de passe</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Which language do you want to use?</source>
        <translation>Quelle langue souhaitez-vous utiliser ?</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Créer un coffre</translation>
    </message>
    <message>
        <source>It keeps your passwords. Only you know its password, and it cannot be recovered.</source>
        <translation>Il garde vos mots de passe. Vous seul connaissez le sien, et il est impossible de le retrouver.</translation>
    </message>
    <message>
        <source>Fill forms in your browser</source>
        <translation>Remplir les formulaires du navigateur</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>Le programme attend dans la zone de notification quand vous fermez sa fenêtre.</translation>
    </message>
    <message>
        <source>Bring your passwords over</source>
        <translation>Importer vos mots de passe</translation>
    </message>
    <message>
        <source>From a browser or another program. You can also do it later, in the menu of the safe.</source>
        <translation>Depuis un navigateur ou un autre programme. Vous pouvez aussi le faire plus tard, dans le menu du coffre.</translation>
    </message>
    <message>
        <source>Install plugin very fast and simple</source>
        <translation>Installer l’extension est très simple et rapide</translation>
    </message>
</context>
<context>
    <name>FormFillFlow</name>
    <message>
        <source>Can&apos;t login.</source>
        <translation>Connexion impossible.</translation>
    </message>
    <message>
        <source>Item %1 has wrong url: %2</source>
        <translation>L’élément %1 a une URL incorrecte&#xa0;: %2</translation>
    </message>
    <message>
        <source>No browser is connected</source>
        <translation>Aucun navigateur n’est connecté</translation>
    </message>
    <message>
        <source>To fill this into a page, open your browser with the extension.</source>
        <translation>Pour remplir une page avec ceci, ouvrez votre navigateur doté de l’extension.</translation>
    </message>
    <message>
        <source>Nothing to fill</source>
        <translation>Rien à remplir</translation>
    </message>
    <message>
        <source>The page shows no empty fields for “%1”.</source>
        <translation>La page n’a aucun champ vide pour «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>This page is not encrypted</source>
        <translation>Cette page n’est pas chiffrée</translation>
    </message>
    <message>
        <source>A card is filled into encrypted pages (https) alone.</source>
        <translation>Une carte n’est remplie que dans des pages chiffrées (https).</translation>
    </message>
    <message>
        <source>An identity is filled into encrypted pages (https) alone.</source>
        <translation>Une identité n’est remplie que dans des pages chiffrées (https).</translation>
    </message>
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Impossible d’enregistrer les modifications.</translation>
    </message>
    <message>
        <source>These files could not be written; what they held before is still there. Check the free space and the permissions, then save again:
%1</source>
        <translation>Ces fichiers n’ont pas pu être écrits&#x202f;; leur contenu précédent est toujours là. Vérifiez l’espace libre et les droits d’accès, puis enregistrez à nouveau&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Can&apos;t use the hotkey.</source>
        <translation>Raccourci inutilisable.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Choose another combination in the settings, or end that program and start this one anew.</source>
        <translation>%1 est utilisé par un autre programme. Choisissez une autre combinaison dans les paramètres, ou quittez cet autre programme et relancez celui-ci.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Can&apos;t back up.</source>
        <translation>Impossible de sauvegarder.</translation>
    </message>
    <message>
        <source>%1

Earlier backups are left as they are, in:
%2</source>
        <translation>%1

Les sauvegardes précédentes restent telles quelles, dans :
%2</translation>
    </message>
</context>
<context>
    <name>GeneratorPanel</name>
    <message>
        <source>Generated password</source>
        <translation>Mot de passe généré</translation>
    </message>
    <message>
        <source>Another password</source>
        <translation>Autre mot de passe</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longueur&#xa0;:</translation>
    </message>
    <message>
        <source>Special chars:</source>
        <translation>Caract. spéciaux&#xa0;:</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation>Il n’y a aucun champ où l’insérer.</translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation>Mots de passe générés depuis l’ouverture du coffre&#x202f;; son verrouillage les efface</translation>
    </message>
    <message>
        <source>Passwords are remembered only while a safe is open</source>
        <translation>Les mots de passe ne sont mémorisés que tant qu’un coffre est ouvert</translation>
    </message>
    <message>
        <source>Hidden password</source>
        <translation>Mot de passe masqué</translation>
    </message>
    <message>
        <source>used</source>
        <translation>utilisé</translation>
    </message>
    <message>
        <source>Copy the password of %1</source>
        <translation>Copier le mot de passe (%1)</translation>
    </message>
</context>
<context>
    <name>HealthDialog</name>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Faibles</translation>
    </message>
    <message>
        <source>Reused</source>
        <translation>Réutilisés</translation>
    </message>
    <message>
        <source>Older than 2 years</source>
        <translation>Plus de 2&#xa0;ans</translation>
    </message>
    <message>
        <source>Not on https</source>
        <translation>Sans https</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Bientôt expirés</translation>
    </message>
    <message>
        <source>Looking at the items…</source>
        <translation>Examen des éléments…</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Afficher plus (%1)</translation>
    </message>
    <message>
        <source>Back to what is not ignored</source>
        <translation>Revenir aux non ignorés</translation>
    </message>
    <message>
        <source>Ignored (%1)</source>
        <translation>Ignorés (%1)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien à signaler</translation>
    </message>
    <message>
        <source>Not all items have been looked at yet.</source>
        <translation>Tous les éléments n’ont pas encore été examinés.</translation>
    </message>
</context>
<context>
    <name>HealthTile</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>HotkeyLineEdit</name>
    <message>
        <source>Press keys</source>
        <translation>Tapez les touches</translation>
    </message>
    <message>
        <source>Press a combination of keys; Backspace clears it</source>
        <translation>Appuyez sur une combinaison de touches&#x202f;; Retour arrière l’efface</translation>
    </message>
</context>
<context>
    <name>HotkeyRules</name>
    <message>
        <source>Use it together with Ctrl, Alt or Meta</source>
        <translation>À combiner avec Ctrl, Alt ou Meta</translation>
    </message>
    <message>
        <source>%1 is taken by: %2</source>
        <translation>%1 est déjà utilisé pour&#xa0;: %2</translation>
    </message>
    <message>
        <source>This key can not be used</source>
        <translation>Cette touche ne peut pas être utilisée</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>The file is not there or can&apos;t be read.</source>
        <translation>Le fichier est absent ou illisible.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Un autre coffre est en cours d’importation. Réessayez ensuite.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Impossible d’écrire le coffre. Vérifiez l’espace libre et que vous avez le droit d’écrire dans le dossier de vos coffres.</translation>
    </message>
    <message>
        <source>The file would unpack to more than 4 GiB, or to a hundred times its size. No safe does that, so it was not imported.</source>
        <translation>Une fois décompressé, le fichier dépasserait 4&#xa0;Gio ou cent fois sa taille. Aucun coffre ne fait cela&#xa0;: il n’a donc pas été importé.</translation>
    </message>
    <message>
        <source>This file is not an archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>Ce fichier n’est pas une archive. Choisissez un fichier issu de l’exportation ou de la sauvegarde d’un coffre.</translation>
    </message>
    <message>
        <source>The file is damaged or was cut short. Copy it again from where it came from, or choose another backup.</source>
        <translation>Le fichier est endommagé ou tronqué. Copiez-le à nouveau depuis son emplacement d’origine, ou choisissez une autre sauvegarde.</translation>
    </message>
    <message>
        <source>The archive has a password of its own or is packed in a way that can&apos;t be read. Pack it again as a plain ZIP file.</source>
        <translation>L’archive a son propre mot de passe ou est compressée d’une façon illisible ici. Compressez-la à nouveau en fichier ZIP ordinaire.</translation>
    </message>
    <message>
        <source>The archive holds a file that would be written outside the safe. Somebody may have tampered with it.</source>
        <translation>L’archive contient un fichier qui serait écrit en dehors du coffre. Quelqu’un l’a peut-être falsifiée.</translation>
    </message>
    <message>
        <source>The archive holds two files of the same name. Somebody may have tampered with it.</source>
        <translation>L’archive contient deux fichiers du même nom. Quelqu’un l’a peut-être falsifiée.</translation>
    </message>
    <message>
        <source>There is no safe in this archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>Il n’y a pas de coffre dans cette archive. Choisissez un fichier issu de l’exportation ou de la sauvegarde d’un coffre.</translation>
    </message>
</context>
<context>
    <name>InstallSteps</name>
    <message>
        <source>Add the extension to %1</source>
        <translation>Ajouter l’extension à %1</translation>
    </message>
    <message>
        <source>The extension did not come with this program. Install the program anew to get it.</source>
        <translation>L’extension n’était pas fournie avec ce programme. Réinstallez le programme pour l’obtenir.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the address</source>
        <translation>Copier l’adresse</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>In %1 open the address %2</source>
        <translation>Dans %1, ouvrez l’adresse %2</translation>
    </message>
    <message>
        <source>Choose “Load Temporary Add-on…” and the file “manifest.json” in the folder of the extension</source>
        <translation>Choisissez «&#x202f;Charger un module complémentaire temporaire…&#x202f;» et le fichier «&#x202f;manifest.json&#x202f;» dans le dossier de l’extension</translation>
    </message>
    <message>
        <source>Come back here: the program asks whether Firefox may connect</source>
        <translation>Revenez ici&#xa0;: le programme demande si Firefox peut se connecter</translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation>Activez «&#x202f;Mode développeur&#x202f;»</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Choisissez «&#x202f;Charger l’extension non empaquetée&#x202f;» et le dossier de l’extension</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Dossier de l’extension</translation>
    </message>
    <message>
        <source>Firefox forgets an extension that was added this way when it is closed.</source>
        <translation>À sa fermeture, Firefox oublie une extension ajoutée de cette façon.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Confirmation</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Do you want to delete the item forever?
It can not be restored.</source>
        <translation>Supprimer définitivement l’élément&#x202f;?
Il ne pourra pas être restauré.</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do you want to remove item?</source>
        <translation>Supprimer l’élément&#x202f;?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Do you want to delete all items in the trash forever?
They can not be restored.</source>
        <translation>Supprimer définitivement tous les éléments de la corbeille&#x202f;?
Ils ne pourront pas être restaurés.</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copie)</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation>
            <numerusform>Supprimer définitivement %n élément&#x202f;?
Il ne pourra pas être restauré.</numerusform>
            <numerusform>Supprimer définitivement %n éléments&#x202f;?
Ils ne pourront pas être restaurés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation>
            <numerusform>Supprimer %n élément&#x202f;?</numerusform>
            <numerusform>Supprimer %n éléments&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Their attachment is deleted as well.</source>
        <translation>La pièce jointe est supprimée aussi.</translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation>
            <numerusform>La pièce jointe est supprimée aussi.</numerusform>
            <numerusform>Les %n pièces jointes sont supprimées aussi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemChanges</name>
    <message>
        <source>Can&apos;t delete now.</source>
        <translation>Suppression impossible pour l’instant.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed. Delete the items when that is done.</source>
        <translation>Le mot de passe du coffre est en cours de changement. Supprimez les éléments ensuite.</translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation>Suppression impossible.</translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation>Les éléments sont toujours là. Vérifiez que le dossier du coffre est accessible en écriture&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>When logging in</source>
        <translation>À la connexion</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Numéro de carte</translation>
    </message>
    <message>
        <source>Card type</source>
        <translation>Type de carte</translation>
    </message>
    <message>
        <source>Card holder</source>
        <translation>Titulaire</translation>
    </message>
    <message>
        <source>Expires</source>
        <translation>Expiration</translation>
    </message>
    <message>
        <source>Security code</source>
        <translation>Code de sécurité</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banque</translation>
    </message>
    <message>
        <source>Bank phone</source>
        <translation>Tél. de la banque</translation>
    </message>
    <message>
        <source>Bank web site</source>
        <translation>Site de la banque</translation>
    </message>
    <message>
        <source>Account type</source>
        <translation>Type de compte</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Titulaire du compte</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Numéro de compte</translation>
    </message>
    <message>
        <source>Routing number</source>
        <translation>Numéro d’acheminement</translation>
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
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nom de famille</translation>
    </message>
    <message>
        <source>Birth date</source>
        <translation>Date de naissance</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Sexe</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Address line 1</source>
        <translation>Adresse (ligne 1)</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Société</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Adresse (ligne 2)</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Tél. mobile</translation>
    </message>
    <message>
        <source>Business phone</source>
        <translation>Tél. professionnel</translation>
    </message>
    <message>
        <source>Skype</source>
        <translation>Skype</translation>
    </message>
    <message>
        <source>Passport number</source>
        <translation>Numéro de passeport</translation>
    </message>
    <message>
        <source>Passport type</source>
        <translation>Type de passeport</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nom complet</translation>
    </message>
    <message>
        <source>Birth place</source>
        <translation>Lieu de naissance</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nationalité</translation>
    </message>
    <message>
        <source>Authority</source>
        <translation>Autorité</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Délivré le</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Numéro de permis</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Clé de licence</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Remplir et envoyer</translation>
    </message>
    <message>
        <source>Only fill</source>
        <translation>Remplir seulement</translation>
    </message>
    <message>
        <source>Use application setting (fill and submit)</source>
        <translation>Selon les paramètres (remplir et envoyer)</translation>
    </message>
    <message>
        <source>Use application setting (only fill)</source>
        <translation>Selon les paramètres (remplir seulement)</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Masculin</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Féminin</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>Login</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Carte bancaire</translation>
    </message>
    <message>
        <source>Credit cards</source>
        <translation>Cartes bancaires</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Compte bancaire</translation>
    </message>
    <message>
        <source>Bank accounts</source>
        <translation>Banque</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identité</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identités</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Passeport</translation>
    </message>
    <message>
        <source>Passports</source>
        <translation>Passeports</translation>
    </message>
    <message>
        <source>Social security</source>
        <translation>Sécurité sociale</translation>
    </message>
    <message>
        <source>Driver licence</source>
        <translation>Permis de conduire</translation>
    </message>
    <message>
        <source>Driver licences</source>
        <translation>Permis</translation>
    </message>
    <message>
        <source>Secure note</source>
        <translation>Note sécurisée</translation>
    </message>
    <message>
        <source>Secure notes</source>
        <translation>Notes sécurisées</translation>
    </message>
    <message>
        <source>FTP account</source>
        <translation>Compte FTP</translation>
    </message>
    <message>
        <source>FTP accounts</source>
        <translation>Comptes FTP</translation>
    </message>
    <message>
        <source>Software licence</source>
        <translation>Licence logicielle</translation>
    </message>
    <message>
        <source>Software licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Pièce jointe</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Pièces jointes</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tous les éléments</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Les plus utilisés</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>New login</source>
        <translation>Nouvel identifiant</translation>
    </message>
    <message>
        <source>New credit card</source>
        <translation>Nouvelle carte bancaire</translation>
    </message>
    <message>
        <source>New bank account</source>
        <translation>Nouveau compte bancaire</translation>
    </message>
    <message>
        <source>New identity</source>
        <translation>Nouvelle identité</translation>
    </message>
    <message>
        <source>New passport</source>
        <translation>Nouveau passeport</translation>
    </message>
    <message>
        <source>New social security number</source>
        <translation>Nouveau numéro de sécurité sociale</translation>
    </message>
    <message>
        <source>New driver licence</source>
        <translation>Nouveau permis de conduire</translation>
    </message>
    <message>
        <source>New secure note</source>
        <translation>Nouvelle note sécurisée</translation>
    </message>
    <message>
        <source>New FTP account</source>
        <translation>Nouveau compte FTP</translation>
    </message>
    <message>
        <source>New software licence</source>
        <translation>Nouvelle licence logicielle</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Nouvelle pièce jointe</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Nouvel élément</translation>
    </message>
    <message>
        <source>Copy password</source>
        <translation>Copier le mot de passe</translation>
    </message>
    <message>
        <source>Copy card number</source>
        <translation>Copier le numéro de carte</translation>
    </message>
    <message>
        <source>Copy account number</source>
        <translation>Copier le numéro de compte</translation>
    </message>
    <message>
        <source>Copy email address</source>
        <translation>Copier l’adresse e-mail</translation>
    </message>
    <message>
        <source>Copy passport number</source>
        <translation>Copier le numéro de passeport</translation>
    </message>
    <message>
        <source>Copy number</source>
        <translation>Copier le numéro</translation>
    </message>
    <message>
        <source>Copy licence number</source>
        <translation>Copier le numéro de permis</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Copier le texte</translation>
    </message>
    <message>
        <source>Copy licence key</source>
        <translation>Copier la clé de licence</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Bientôt expirés</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Fill in</source>
        <translation>Remplir</translation>
    </message>
</context>
<context>
    <name>ItemListPane</name>
    <message>
        <source>Mark an item with the star, and it appears here.</source>
        <translation>Marquez un élément d’une étoile&#xa0;: il apparaîtra ici.</translation>
    </message>
    <message>
        <source>Items appear here once you have logged in with them.</source>
        <translation>Les éléments apparaissent ici une fois qu’ils ont servi à une connexion.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation>Ctrl F</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>Filtrer %1</translation>
    </message>
    <message>
        <source>No items found</source>
        <translation>Aucun élément trouvé</translation>
    </message>
    <message>
        <source>Try fewer words, or press Esc to see all items.</source>
        <translation>Essayez avec moins de mots, ou appuyez sur Échap pour voir tous les éléments.</translation>
    </message>
    <message>
        <source>No items in this category</source>
        <translation>Aucun élément dans cette catégorie</translation>
    </message>
    <message>
        <source>What you remove stays here until you delete it forever.</source>
        <translation>Ce que vous supprimez reste ici jusqu’à sa suppression définitive.</translation>
    </message>
    <message>
        <source>Your safe is empty</source>
        <translation>Votre coffre est vide</translation>
    </message>
    <message>
        <source>Keep your user names and passwords here.</source>
        <translation>Conservez ici vos noms d’utilisateur et vos mots de passe.</translation>
    </message>
    <message>
        <source>Add your first login</source>
        <translation>Ajouter un identifiant</translation>
    </message>
    <message>
        <source>Press Ctrl+N to add the first one.</source>
        <translation>Appuyez sur Ctrl+N pour ajouter le premier.</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Nouvel élément</translation>
    </message>
    <message>
        <source>New item (Ctrl+N)</source>
        <translation>Nouvel élément (Ctrl+N)</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Importer des mots de passe…</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Open address</source>
        <translation>Ouvrir l’adresse</translation>
    </message>
    <message>
        <source>Copy user name</source>
        <translation>Copier le nom d’utilisateur</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Delete forever…</source>
        <translation>Supprimer définitivement…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Log in (Ctrl+Return)</source>
        <translation>Connexion (Ctrl+Entrée)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Modified %1 · created %2</source>
        <translation>Modifié %1 · créé %2</translation>
    </message>
    <message>
        <source>Used once</source>
        <translation>Utilisé une fois</translation>
    </message>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation>
            <numerusform>Utilisé %n fois</numerusform>
            <numerusform>Utilisé %n fois</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit (F2)</source>
        <translation>Modifier (F2)</translation>
    </message>
    <message>
        <source>Fill into the open page (Ctrl+Return)</source>
        <translation>Remplir dans la page ouverte (Ctrl+Entrée)</translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation>Aucun élément sélectionné</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save (Ctrl+S)</source>
        <translation>Enregistrer (Ctrl+S)</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Impossible d’enregistrer les modifications.</translation>
    </message>
    <message>
        <source>There are empty required values.
Fill and try again.</source>
        <translation>Des champs obligatoires sont vides.
Remplissez-les et réessayez.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The object has been modified</source>
        <translation>L’élément a été modifié</translation>
    </message>
    <message>
        <source>There are empty required fields. What would you like to do?</source>
        <translation>Des champs obligatoires sont vides. Que souhaitez-vous faire&#x202f;?</translation>
    </message>
    <message>
        <source>You have not saved changes yet</source>
        <translation>Vos modifications ne sont pas encore enregistrées</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Poursuivre la saisie</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add one.</source>
        <translation>Choisissez un élément à gauche, ou appuyez sur Ctrl+N pour en ajouter un.</translation>
    </message>
    <message>
        <source>There are values that are no date or no number.
Correct them and try again.</source>
        <translation>Certaines valeurs ne sont pas des dates ou des nombres.
Corrigez-les et réessayez.</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Nouvelle pièce jointe</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Choisissez un fichier</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>LineInput</name>
    <message>
        <source>Open in browser</source>
        <translation>Ouvrir dans le navigateur</translation>
    </message>
    <message>
        <source>Open in browser (Alt+Return)</source>
        <translation>Ouvrir dans le navigateur (Alt+Entrée)</translation>
    </message>
    <message>
        <source>e.g. %1</source>
        <translation>p. ex. %1</translation>
    </message>
    <message>
        <source>MM / YYYY</source>
        <translation>MM / AAAA</translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation>Choisir une date</translation>
    </message>
    <message>
        <source>Choose a date (Alt+Down)</source>
        <translation>Choisir une date (Alt+Bas)</translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation>
            <numerusform>Verrouillé après %n minute d’inactivité</numerusform>
            <numerusform>Verrouillé après %n minutes d’inactivité</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoginSaving</name>
    <message>
        <source>%1 (former password, until %2)</source>
        <translation>%1 (ancien mot de passe, jusqu’au %2)</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Moved to trash</source>
        <translation>Mis à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation>
            <numerusform>%n élément mis à la corbeille</numerusform>
            <numerusform>%n éléments mis à la corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>“%1” was deleted on another computer.</source>
        <translation>«&#x202f;%1&#x202f;» a été supprimé sur un autre ordinateur.</translation>
    </message>
    <message>
        <source>What you have typed is kept. Save it as a new item, or discard it.</source>
        <translation>Votre saisie est conservée. Enregistrez-la comme nouvel élément, ou abandonnez-la.</translation>
    </message>
</context>
<context>
    <name>MasterPasswordPage</name>
    <message>
        <source>Safe</source>
        <translation>Coffre</translation>
    </message>
    <message>
        <source>Click to select safe</source>
        <translation>Cliquer pour choisir un coffre</translation>
    </message>
    <message>
        <source>Enter Password</source>
        <translation>Saisir le mot de passe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Reading items</source>
        <translation>Lecture des éléments</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Créer un coffre…</translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation>%1 (indisponible)</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Bon retour</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Vous n’avez pas encore de coffre
En créer un&#x202f;?</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Indice&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Unlocking: %1 of %2 items</source>
        <translation>Déverrouillage&#xa0;: %1 éléments sur %2</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Déverrouillage…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurer une sauvegarde…</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Coffres…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Ouvrir quand même</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (recherche…)</translation>
    </message>
    <message>
        <source>Saving your last changes first…</source>
        <translation>Enregistrement de vos dernières modifications d’abord…</translation>
    </message>
    <message>
        <source>Locked. Saving your last changes…</source>
        <translation>Verrouillé. Enregistrement de vos dernières modifications…</translation>
    </message>
</context>
<context>
    <name>MonthPopup</name>
    <message>
        <source>Previous year</source>
        <translation>Année précédente</translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Année suivante</translation>
    </message>
</context>
<context>
    <name>MoveInColumns</name>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The columns of “%1” are not known. Say what each one holds.</source>
        <translation>Les colonnes de «&#x202f;%1&#x202f;» ne sont pas connues. Indiquez ce que contient chacune.</translation>
    </message>
    <message>
        <source>Keep it in the note</source>
        <translation>Garder dans la note</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>MoveInDialog</name>
    <message>
        <source>Choose the exported file</source>
        <translation>Choisir le fichier exporté</translation>
    </message>
    <message>
        <source>Exports of passwords (%1)</source>
        <translation>Mots de passe exportés (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Tous les fichiers (%1)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Bring passwords over</source>
        <translation>Importer des mots de passe</translation>
    </message>
    <message>
        <source>Drop the exported file here</source>
        <translation>Déposez ici le fichier exporté</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copié.</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Lecture de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>Added %1 of %2…</source>
        <translation>%1 ajoutés sur %2…</translation>
    </message>
    <message>
        <source>What came in.txt</source>
        <translation>Ce qui a été importé.txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>The file cannot be written. Choose another folder.</source>
        <translation>Le fichier n’a pas pu être écrit. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Supprimer «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>The file does not go to the bin: it is gone at once. Nobody can promise that nothing of it stays behind: SSDs, backups and folders that are synchronised may keep what was deleted for a while.</source>
        <translation>Le fichier ne va pas à la corbeille&#xa0;: il disparaît aussitôt. Nul ne peut promettre qu’il n’en reste rien&#xa0;: les SSD, les sauvegardes et les dossiers synchronisés peuvent garder un temps ce qui a été supprimé.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The file “%1” is deleted. If you made other copies of it, delete them, too.</source>
        <translation>Le fichier «&#x202f;%1&#x202f;» est supprimé. Si vous en avez fait d’autres copies, supprimez-les aussi.</translation>
    </message>
    <message>
        <source>The file cannot be deleted. Close the program that has it open, then try again:
%1</source>
        <translation>Impossible de supprimer le fichier. Fermez le programme qui l’utilise, puis réessayez&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>MoveInEnd</name>
    <message>
        <source>What did not come in</source>
        <translation>Ce qui n’a pas été importé</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Supprimer le fichier</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Look at what did not come in, then delete the file.</source>
        <translation>Le fichier «&#x202f;%1&#x202f;» contient encore vos mots de passe, lisibles par tous. Regardez ce qui n’a pas été importé, puis supprimez le fichier.</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Delete it now.</source>
        <translation>Le fichier «&#x202f;%1&#x202f;» contient encore vos mots de passe, lisibles par tous. Supprimez-le maintenant.</translation>
    </message>
</context>
<context>
    <name>MoveInModel</name>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
    </message>
    <message>
        <source>not chosen</source>
        <translation>non choisi</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Devient</translation>
    </message>
</context>
<context>
    <name>MoveInPage</name>
    <message>
        <source>Bring passwords over…</source>
        <translation>Importer des mots de passe…</translation>
    </message>
    <message>
        <source>Chrome, Edge, Firefox, Safari, Bitwarden and KeePassXC write their passwords into a file, which this program reads. You see everything before it comes in, and how to make the file.</source>
        <translation>Chrome, Edge, Firefox, Safari, Bitwarden et KeePassXC écrivent leurs mots de passe dans un fichier que ce programme lit. Vous voyez tout avant l’importation, et comment créer le fichier.</translation>
    </message>
    <message>
        <source>Open a safe first: the passwords are kept in it.</source>
        <translation>Ouvrez d’abord un coffre&#xa0;: les mots de passe y sont conservés.</translation>
    </message>
</context>
<context>
    <name>MoveInPreview</name>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entrée</numerusform>
            <numerusform>%n entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n logins will be added</source>
        <translation>
            <numerusform>%n identifiant sera ajouté</numerusform>
            <numerusform>%n identifiants seront ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items will be added</source>
        <translation>
            <numerusform>%n élément sera ajouté</numerusform>
            <numerusform>%n éléments seront ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n are already there</source>
        <translation>
            <numerusform>%n déjà présent</numerusform>
            <numerusform>%n déjà présents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable</source>
        <translation>
            <numerusform>%n illisible</numerusform>
            <numerusform>%n illisibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n laissé de côté</numerusform>
            <numerusform>%n laissés de côté</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n logins</source>
        <translation>
            <numerusform>Ajouter %n identifiant</numerusform>
            <numerusform>Ajouter %n identifiants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n items</source>
        <translation>
            <numerusform>Ajouter %n élément</numerusform>
            <numerusform>Ajouter %n éléments</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveInProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
</context>
<context>
    <name>MoveInReport</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Not written to the disk</source>
        <translation>Non écrit sur le disque</translation>
    </message>
    <message>
        <source>Not added before the safe was locked</source>
        <translation>Non ajouté avant le verrouillage du coffre</translation>
    </message>
    <message>
        <source>Not added before you cancelled</source>
        <translation>Non ajouté avant l’annulation</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Non choisi</translation>
    </message>
    <message>
        <source>Nothing came in</source>
        <translation>Rien n’a été importé</translation>
    </message>
    <message numerus="yes">
        <source>%n logins came in</source>
        <translation>
            <numerusform>%n identifiant importé</numerusform>
            <numerusform>%n identifiants importés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came in</source>
        <translation>
            <numerusform>%n élément importé</numerusform>
            <numerusform>%n éléments importés</numerusform>
        </translation>
    </message>
    <message>
        <source>You cancelled. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Vous avez annulé. Ce qui était déjà importé est enregistré. Choisissez à nouveau le fichier pour le reste&#xa0;: ce qui est déjà là est reconnu.</translation>
    </message>
    <message>
        <source>The safe could not be written to. Check the free space and the permissions, then choose the file again: what is there is recognised.</source>
        <translation>Impossible d’écrire dans le coffre. Vérifiez l’espace libre et les droits d’accès, puis choisissez à nouveau le fichier&#xa0;: ce qui est déjà là est reconnu.</translation>
    </message>
    <message>
        <source>The safe was locked meanwhile. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Entre-temps, le coffre s’est verrouillé. Ce qui était déjà importé est enregistré. Choisissez à nouveau le fichier pour le reste&#xa0;: ce qui est déjà là est reconnu.</translation>
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
        <translation>Comment créer le fichier</translation>
    </message>
    <message>
        <source>Drop the exported file here, or choose it. Nothing is added before you have seen what will come in.</source>
        <translation>Déposez ici le fichier exporté, ou choisissez-le. Rien n’est ajouté avant que vous ayez vu ce qui sera importé.</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Choisir un fichier…</translation>
    </message>
</context>
<context>
    <name>MoveInTable</name>
    <message>
        <source>What will come in</source>
        <translation>Ce qui sera importé</translation>
    </message>
</context>
<context>
    <name>MoveInTexts</name>
    <message>
        <source>The file is empty. Export the passwords again, and choose the new file.</source>
        <translation>Le fichier est vide. Exportez à nouveau les mots de passe, et choisissez le nouveau fichier.</translation>
    </message>
    <message>
        <source>The file holds no text that could be read. Export the passwords as CSV or JSON, and choose that file.</source>
        <translation>Le fichier ne contient aucun texte lisible. Exportez les mots de passe au format CSV ou JSON, et choisissez ce fichier.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a text. Export the passwords again, and choose the new file.</source>
        <translation>Le fichier s’arrête au milieu d’un texte. Exportez à nouveau les mots de passe, et choisissez le nouveau fichier.</translation>
    </message>
    <message>
        <source>The file is encrypted. Export again as JSON or CSV without encryption, and delete that file afterwards.</source>
        <translation>Le fichier est chiffré. Exportez à nouveau au format JSON ou CSV sans chiffrement, et supprimez ensuite ce fichier.</translation>
    </message>
    <message>
        <source>This is no export that the program knows. It reads the JSON files of Bitwarden and its own, and CSV files of browsers and other programs.</source>
        <translation>Ce n’est pas une exportation connue du programme. Il lit les fichiers JSON de Bitwarden et les siens, et les fichiers CSV de navigateurs et d’autres programmes.</translation>
    </message>
    <message>
        <source>The names of the columns are not known. Say what each column holds.</source>
        <translation>Les noms des colonnes ne sont pas connus. Indiquez ce que contient chaque colonne.</translation>
    </message>
    <message>
        <source>Save the file where you find it again.</source>
        <translation>Enregistrez le fichier là où vous le retrouverez.</translation>
    </message>
    <message>
        <source>Type %1 into the address bar.</source>
        <translation>Tapez %1 dans la barre d’adresse.</translation>
    </message>
    <message>
        <source>Beside “Export passwords” press “Download file”.</source>
        <translation>À côté de «&#x202f;Exporter les mots de passe&#x202f;», cliquez sur «&#x202f;Télécharger le fichier&#x202f;».</translation>
    </message>
    <message>
        <source>Press the three dots above the list and choose “Export passwords”.</source>
        <translation>Cliquez sur les trois points au-dessus de la liste, puis sur «&#x202f;Exporter les mots de passe&#x202f;».</translation>
    </message>
    <message>
        <source>Press the three dots in the corner and choose “Export passwords…”.</source>
        <translation>Cliquez sur les trois points dans le coin, puis sur «&#x202f;Exporter les mots de passe…&#x202f;».</translation>
    </message>
    <message>
        <source>On the Mac open the program “Passwords”, or Safari on older systems.</source>
        <translation>Sur le Mac, ouvrez le programme «&#x202f;Mots de passe&#x202f;», ou Safari sur les anciens systèmes.</translation>
    </message>
    <message>
        <source>In the menu “File” choose to export all passwords to a file.</source>
        <translation>Dans le menu «&#x202f;Fichier&#x202f;», choisissez d’exporter tous les mots de passe vers un fichier.</translation>
    </message>
    <message>
        <source>Bring the file to this computer.</source>
        <translation>Apportez le fichier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Choose “Export vault”: under “Tools” in the web vault, in the menu “File” of the program.</source>
        <translation>Choisissez «&#x202f;Exporter le coffre&#x202f;»&#xa0;: sous «&#x202f;Outils&#x202f;» dans le coffre web, dans le menu «&#x202f;Fichier&#x202f;» du programme.</translation>
    </message>
    <message>
        <source>Choose “.json”, which holds cards and identities too, and no encryption.</source>
        <translation>Choisissez «&#x202f;.json&#x202f;» sans chiffrement&#xa0;: il contient aussi les cartes et les identités.</translation>
    </message>
    <message>
        <source>Open the database.</source>
        <translation>Ouvrez la base de données.</translation>
    </message>
    <message>
        <source>In the menu “Database” choose “Export”, then “CSV file…”.</source>
        <translation>Dans le menu «&#x202f;Base de données&#x202f;», choisissez «&#x202f;Exporter&#x202f;», puis «&#x202f;Fichier CSV…&#x202f;».</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Un autre coffre</translation>
    </message>
    <message>
        <source>Open the other safe in this program.</source>
        <translation>Ouvrez l’autre coffre dans ce programme.</translation>
    </message>
    <message>
        <source>In the menu of the safe choose “Export items…”, then JSON.</source>
        <translation>Dans le menu du coffre, choisissez «&#x202f;Exporter des éléments…&#x202f;», puis JSON.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Un autre programme</translation>
    </message>
    <message>
        <source>Export the passwords as CSV, with the names of the columns in the first row.</source>
        <translation>Exportez les mots de passe au format CSV, avec les noms des colonnes sur la première ligne.</translation>
    </message>
    <message>
        <source>Choose the file here. You are asked what each column holds, if that is not known.</source>
        <translation>Choisissez le fichier ici. Si le contenu des colonnes n’est pas connu, il vous est demandé.</translation>
    </message>
    <message>
        <source>recognised as an export of a browser</source>
        <translation>reconnu comme exportation d’un navigateur</translation>
    </message>
    <message>
        <source>read by the columns that you chose</source>
        <translation>lu selon les colonnes que vous avez choisies</translation>
    </message>
    <message>
        <source>recognised as an export of %1</source>
        <translation>reconnu comme exportation de %1</translation>
    </message>
    <message>
        <source>There are no rows below the names of the columns. Export the passwords again, and choose the new file.</source>
        <translation>Il n’y a aucune ligne sous les noms des colonnes. Exportez à nouveau les mots de passe, et choisissez le nouveau fichier.</translation>
    </message>
    <message>
        <source>The file is no longer there. Choose it again.</source>
        <translation>Le fichier n’est plus là. Choisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>This is no file. Choose the exported file itself.</source>
        <translation>Ce n’est pas un fichier. Choisissez le fichier exporté lui-même.</translation>
    </message>
    <message>
        <source>The file cannot be read. Close the program that has it open, or copy it to another folder.</source>
        <translation>Le fichier est illisible. Fermez le programme qui l’utilise, ou copiez-le dans un autre dossier.</translation>
    </message>
    <message>
        <source>The file is larger than %1, which no export of passwords is. Check that it is the right one.</source>
        <translation>Le fichier dépasse %1, ce qu’aucune exportation de mots de passe n’atteint. Vérifiez que c’est le bon.</translation>
    </message>
    <message>
        <source>Not a web address</source>
        <translation>Pas une adresse web</translation>
    </message>
    <message>
        <source>Nothing in it</source>
        <translation>Rien dedans</translation>
    </message>
    <message>
        <source>Unknown kind</source>
        <translation>Type inconnu</translation>
    </message>
    <message>
        <source>Wrong number of columns</source>
        <translation>Nombre de colonnes incorrect</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Déjà présent</translation>
    </message>
    <message>
        <source>Other password</source>
        <translation>Autre mot de passe</translation>
    </message>
    <message>
        <source>Other note</source>
        <translation>Autre note</translation>
    </message>
    <message>
        <source>Without address</source>
        <translation>Sans adresse</translation>
    </message>
    <message>
        <source>It is in the safe, or further up in the file.</source>
        <translation>Il est déjà dans le coffre, ou plus haut dans le fichier.</translation>
    </message>
    <message>
        <source>There is a login of the same site and user name with another password. Both will be there.</source>
        <translation>Il existe un identifiant du même site et du même nom d’utilisateur avec un autre mot de passe. Les deux seront là.</translation>
    </message>
    <message>
        <source>There is such an item with another note. Both will be there.</source>
        <translation>Il existe un tel élément avec une autre note. Les deux seront là.</translation>
    </message>
    <message>
        <source>Its address belongs to an app or a file, and goes to the note.</source>
        <translation>Son adresse désigne une application ou un fichier, et va dans la note.</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Entrée %1</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>(entry %1)</source>
        <translation>(entrée %1)</translation>
    </message>
    <message>
        <source>(row %1)</source>
        <translation>(ligne %1)</translation>
    </message>
</context>
<context>
    <name>NarrowLayout</name>
    <message>
        <source>Back to the list (Esc)</source>
        <translation>Retour à la liste (Échap)</translation>
    </message>
</context>
<context>
    <name>NewItemMenu</name>
    <message>
        <source>New item</source>
        <translation>Nouvel élément</translation>
    </message>
</context>
<context>
    <name>NewSafePage</name>
    <message>
        <source>The hint is shown to everyone who opens this window. Let it remind you of the password, and nobody else.</source>
        <translation>L’indice est visible par quiconque ouvre cette fenêtre. Il doit rappeler le mot de passe à vous, et à personne d’autre.</translation>
    </message>
    <message>
        <source>Your safe “%1” is open.</source>
        <translation>Votre coffre « %1 » est ouvert.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Do you have a safe already?</source>
        <translation>Avez-vous déjà un coffre&#x202f;?</translation>
    </message>
    <message>
        <source>Open its folder…</source>
        <translation>Ouvrir son dossier…</translation>
    </message>
    <message>
        <source>Import an archive…</source>
        <translation>Importer une archive…</translation>
    </message>
    <message>
        <source>“%1” is there. Unlock it with its master password after these steps.</source>
        <translation>«&#x202f;%1&#x202f;» est là. Déverrouillez-le avec son mot de passe maître après ces étapes.</translation>
    </message>
</context>
<context>
    <name>NewVersionDialog</name>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>New version</source>
        <translation>Nouvelle version</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>La version %1 est disponible</translation>
    </message>
    <message>
        <source>You have version %1. Your safes and settings stay as they are when you install the new one.</source>
        <translation>Vous avez la version %1. Vos coffres et vos paramètres restent tels quels lorsque vous installez la nouvelle.</translation>
    </message>
    <message>
        <source>The page is on %1 and opens in your browser.</source>
        <translation>La page se trouve sur %1 et s’ouvre dans votre navigateur.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Open the download page</source>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
</context>
<context>
    <name>NoticeBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>PMTranslator</name>
    <message>
        <source>SettingsLocaleTitle</source>
        <translation>Français</translation>
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

Ctrl+N ajoute un identifiant, Ctrl+F recherche, Ctrl+E modifie, Ctrl+S enregistre.
Ctrl+B copie le nom d’utilisateur, Ctrl+Maj+C le mot de passe.
Ctrl+Entrée établit la connexion, Ctrl+L verrouille le coffre, Ctrl+Q quitte le programme.

La police est Inter (SIL Open Font License), les icônes sont celles de Tabler Icons (MIT License).</translation>
    </message>
    <message>
        <source>Choose the folder of the safe</source>
        <translation>Choisir le dossier du coffre</translation>
    </message>
</context>
<context>
    <name>PasswordChangeDesk</name>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>Writing “%1” anew under its new password. You can go on working meanwhile.</source>
        <translation>Réécriture de «&#x202f;%1&#x202f;» sous son nouveau mot de passe. Vous pouvez continuer à travailler entre-temps.</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>View text under dots</source>
        <translation>Afficher le texte masqué</translation>
    </message>
    <message>
        <source>View text under dots (Ctrl+R)</source>
        <translation>Afficher le texte masqué (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>PasswordGeneratorDialog</name>
    <message>
        <source>Password Generator</source>
        <translation>Générateur de mots de passe</translation>
    </message>
</context>
<context>
    <name>PasswordStrength</name>
    <message>
        <source>Strong</source>
        <translation>Excellent</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Terrible</source>
        <translation>Très faible</translation>
    </message>
</context>
<context>
    <name>PasswordWeakness</name>
    <message>
        <source>a name</source>
        <translation>un nom</translation>
    </message>
    <message>
        <source>a word from a list</source>
        <translation>un mot d’une liste</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>une date</translation>
    </message>
    <message>
        <source>keys side by side</source>
        <translation>des touches voisines</translation>
    </message>
    <message>
        <source>a sequence</source>
        <translation>une suite</translation>
    </message>
    <message>
        <source>a repetition</source>
        <translation>une répétition</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>un chiffre</translation>
    </message>
    <message>
        <source>digits</source>
        <translation>des chiffres</translation>
    </message>
    <message>
        <source>a few characters</source>
        <translation>quelques caractères</translation>
    </message>
    <message>
        <source>too few characters</source>
        <translation>trop peu de caractères</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
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
        <translation>Indicatif</translation>
    </message>
    <message>
        <source>%1: country code</source>
        <translation>%1 : indicatif du pays</translation>
    </message>
</context>
<context>
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
        <translation>Version non valide de l’extension %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PluginsPage</name>
    <message>
        <source>No browser was found that the extension is made for: Chrome, Chromium or Firefox.</source>
        <translation>Aucun navigateur pour lequel l’extension est conçue n’a été trouvé&#xa0;: Chrome, Chromium ou Firefox.</translation>
    </message>
    <message>
        <source>Looking for browsers…</source>
        <translation>Recherche de navigateurs…</translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation>Un navigateur est connecté.</translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation>Aucun navigateur n’est encore connecté. Cela s’affichera ici.</translation>
    </message>
    <message>
        <source>Opens your web links</source>
        <translation>Ouvre vos liens web</translation>
    </message>
    <message>
        <source>Installed %1</source>
        <translation>Installée %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connectée</translation>
    </message>
    <message>
        <source>%1, connected</source>
        <translation>%1, connectée</translation>
    </message>
    <message>
        <source>Install Plugin</source>
        <translation>Installer l’extension</translation>
    </message>
    <message>
        <source>Install Plugin: %1</source>
        <translation>Installer l’extension&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ProgramShortcuts</name>
    <message>
        <source>copy</source>
        <translation>copier</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>couper</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>coller</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>annuler</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>rétablir</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>tout sélectionner</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>une commande de ce programme</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
</context>
<context>
    <name>QuickAccessWindow</name>
    <message>
        <source>Quick access</source>
        <translation>Accès rapide</translation>
    </message>
    <message>
        <source>No safe yet</source>
        <translation>Aucun coffre pour l’instant</translation>
    </message>
    <message>
        <source>Create one in the main window; what it keeps is found here.</source>
        <translation>Créez-en un dans la fenêtre principale&#x202f;; vous trouverez ici son contenu.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Générateur de mots de passe</translation>
    </message>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>Aucun navigateur doté de l’extension n’est connecté</translation>
    </message>
</context>
<context>
    <name>QuickBar</name>
    <message>
        <source>Logins</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identités</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Générer</translation>
    </message>
    <message>
        <source>%1 (Ctrl+%2)</source>
        <translation>%1 (Ctrl+%2)</translation>
    </message>
</context>
<context>
    <name>QuickDelegate</name>
    <message>
        <source>For %1</source>
        <translation>Pour %1</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Les plus utilisés</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identités</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>QuickList</name>
    <message>
        <source>Search logins, cards, identities</source>
        <translation>Chercher identifiants, cartes, identités</translation>
    </message>
    <message>
        <source>The arrow keys choose an item, Enter fills it. Ctrl+C copies its password, Ctrl+B its user name.</source>
        <translation>Les flèches choisissent un élément, Entrée le remplit. Ctrl+C copie son mot de passe, Ctrl+B son nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Try another word, or fewer letters.</source>
        <translation>Essayez un autre mot, ou moins de lettres.</translation>
    </message>
    <message>
        <source>No logins yet</source>
        <translation>Aucun identifiant pour l’instant</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Aucune carte pour l’instant</translation>
    </message>
    <message>
        <source>No identities yet</source>
        <translation>Aucune identité pour l’instant</translation>
    </message>
    <message>
        <source>What you add in the main window is found here.</source>
        <translation>Vous trouverez ici ce que vous ajoutez dans la fenêtre principale.</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>adds an item</source>
        <translation>ajoute un élément</translation>
    </message>
    <message>
        <source>searches</source>
        <translation>recherche</translation>
    </message>
    <message>
        <source>opens the page of a login and fills it in</source>
        <translation>ouvre la page d’un identifiant et la remplit</translation>
    </message>
    <message>
        <source>locks the safe</source>
        <translation>verrouille le coffre</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>today</source>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>il y a %1&#xa0;jours</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Restore from a backup</source>
        <translation>Restaurer une sauvegarde</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Autre dossier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Lecture des sauvegardes…</translation>
    </message>
    <message>
        <source>The folder is not there</source>
        <translation>Le dossier est introuvable</translation>
    </message>
    <message>
        <source>Connect its drive, or choose the folder that your backups lie in.</source>
        <translation>Branchez son disque, ou choisissez le dossier où se trouvent vos sauvegardes.</translation>
    </message>
    <message>
        <source>No backups here</source>
        <translation>Aucune sauvegarde ici</translation>
    </message>
    <message>
        <source>Choose the folder that your backups lie in, such as one on another disk.</source>
        <translation>Choisissez le dossier où se trouvent vos sauvegardes, par exemple sur un autre disque.</translation>
    </message>
    <message>
        <source>It comes back as a new safe with the password of that time.</source>
        <translation>Elle devient un nouveau coffre, avec le mot de passe de l’époque.</translation>
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
        <translation>Ouvrir le dossier d’un coffre</translation>
    </message>
    <message>
        <source>No safe there</source>
        <translation>Aucun coffre ici</translation>
    </message>
    <message>
        <source>There is no safe in this folder. The folder of a safe holds a file “safe.meta”:
%1</source>
        <translation>Il n’y a pas de coffre dans ce dossier. Le dossier d’un coffre contient un fichier «&#x202f;safe.meta&#x202f;»&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Name of the safe</source>
        <translation>Nom du coffre</translation>
    </message>
    <message>
        <source>Can&apos;t rename.</source>
        <translation>Impossible de renommer.</translation>
    </message>
    <message>
        <source>The safe keeps its name. Check the free space and that you may write to its folder:
%1</source>
        <translation>Le coffre garde son nom. Vérifiez l’espace libre et que vous avez le droit d’écrire dans son dossier&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Where is “%1” now?</source>
        <translation>Où est «&#x202f;%1&#x202f;» maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Un autre coffre</translation>
    </message>
    <message>
        <source>This folder holds another safe than “%1”. Open it on its own with “Open the folder of a safe”, or choose another folder.</source>
        <translation>Ce dossier contient un autre coffre que «&#x202f;%1&#x202f;». Ouvrez-le à part avec «&#x202f;Ouvrir le dossier d’un coffre&#x202f;», ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>There is no safe in this folder:
%1</source>
        <translation>Il n’y a pas de coffre dans ce dossier&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Take “%1” off the list?</source>
        <translation>Retirer «&#x202f;%1&#x202f;» de la liste&#x202f;?</translation>
    </message>
    <message>
        <source>Its files stay where they are. “Open the folder of a safe” brings it back:
%1</source>
        <translation>Ses fichiers restent où ils sont. «&#x202f;Ouvrir le dossier d’un coffre&#x202f;» le fait revenir&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Its folder is not there now. If it comes back, “Open the folder of a safe” finds it:
%1</source>
        <translation>Son dossier est actuellement introuvable. S’il revient, «&#x202f;Ouvrir le dossier d’un coffre&#x202f;» le retrouvera&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete safe</source>
        <translation>Supprimer le coffre</translation>
    </message>
    <message>
        <source>Deleting “%1”…</source>
        <translation>Suppression de «&#x202f;%1&#x202f;»…</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is not in its folder any more.</source>
        <translation>Rien n’a été supprimé&#xa0;: le coffre n’est plus dans son dossier.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is being archived, or its password is being changed. Try again when that is done.</source>
        <translation>Rien n’a été supprimé&#xa0;: le coffre est en cours d’archivage, ou son mot de passe en cours de changement. Réessayez ensuite.</translation>
    </message>
    <message>
        <source>Nothing was deleted: another program has this safe open. Close it there and try again.</source>
        <translation>Rien n’a été supprimé&#xa0;: ce coffre est ouvert dans un autre programme. Fermez-le là-bas et réessayez.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is as it was. Check that you may write to its folder and try again.</source>
        <translation>Rien n’a été supprimé&#xa0;: le coffre est tel qu’il était. Vérifiez que vous avez le droit d’écrire dans son dossier et réessayez.</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>“%1” is gone, but some of its files could not be removed. They are encrypted, and you can delete them:
%2</source>
        <translation>«&#x202f;%1&#x202f;» est supprimé, mais certains de ses fichiers n’ont pas pu l’être. Ils sont chiffrés, et vous pouvez les supprimer&#xa0;:
%2</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is gone. %n other files were in its folder and are still there:
%2</source>
        <translation>
            <numerusform>«&#x202f;%1&#x202f;» est supprimé. %n autre fichier se trouvait dans son dossier et y est encore&#xa0;:
%2</numerusform>
            <numerusform>«&#x202f;%1&#x202f;» est supprimé. %n autres fichiers se trouvaient dans son dossier et y sont encore&#xa0;:
%2</numerusform>
        </translation>
    </message>
    <message>
        <source>The safe keeps its name while its password is being changed. Try again when that is done.</source>
        <translation>Le coffre garde son nom pendant que son mot de passe change. Réessayez ensuite.</translation>
    </message>
</context>
<context>
    <name>SafeItemEditor</name>
    <message>
        <source>Editing “%1” · %2</source>
        <translation>Modification de «&#x202f;%1&#x202f;» · %2</translation>
    </message>
    <message>
        <source>small</source>
        <extracomment>&quot;small&quot; where a language writes names inside a sentence small, else &quot;as they are&quot;</extracomment>
        <translation>small</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>More fields: %1</source>
        <extracomment>names of fields</extracomment>
        <translation>Autres champs&#xa0;: %1</translation>
    </message>
    <message>
        <source>More fields: %1…</source>
        <translation>Autres champs&#xa0;: %1…</translation>
    </message>
</context>
<context>
    <name>SafeLines</name>
    <message>
        <source>Folder not found: it was on a drive that is not connected</source>
        <translation>Dossier introuvable&#xa0;: il était sur un disque qui n’est pas branché</translation>
    </message>
    <message>
        <source>Folder not found: it was moved, renamed or deleted</source>
        <translation>Dossier introuvable&#xa0;: il a été déplacé, renommé ou supprimé</translation>
    </message>
    <message>
        <source>There is no safe in its folder any more, or it can&apos;t be read</source>
        <translation>Il n’y a plus de coffre dans son dossier, ou il est illisible</translation>
    </message>
    <message>
        <source>in the cloud folder</source>
        <translation>dans le dossier cloud</translation>
    </message>
    <message>
        <source>a copy of “%1”</source>
        <translation>une copie de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>Last opened %1</source>
        <translation>Dernière ouverture&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>Pas encore ouvert</translation>
    </message>
    <message>
        <source>synchronised %1</source>
        <translation>synchronisé %1</translation>
    </message>
    <message>
        <source>backed up %1</source>
        <translation>sauvegardé %1</translation>
    </message>
    <message>
        <source>no backup yet</source>
        <translation>aucune sauvegarde</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>recherche…</translation>
    </message>
</context>
<context>
    <name>SafeMenu</name>
    <message>
        <source>Create new...</source>
        <translation>Créer un coffre…</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Coffres…</translation>
    </message>
    <message>
        <source>Synchronise now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Importer des mots de passe…</translation>
    </message>
    <message>
        <source>Export items…</source>
        <translation>Exporter des éléments…</translation>
    </message>
    <message>
        <source>Export safe…</source>
        <translation>Exporter le coffre…</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Changer de mot de passe…</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (indisponible)</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (recherche…)</translation>
    </message>
</context>
<context>
    <name>SafeRow</name>
    <message>
        <source>Locate…</source>
        <translation>Localiser…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>More about “%1”</source>
        <translation>Autres actions pour «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>Remove from list…</source>
        <translation>Retirer de la liste…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
</context>
<context>
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Changer de coffre</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Coffre&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SafesDialog</name>
    <message>
        <source>Safes</source>
        <translation>Coffres</translation>
    </message>
    <message>
        <source>New safe</source>
        <translation>Nouveau coffre</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Make a safe from an archive or a backup</source>
        <translation>Créer un coffre depuis une archive ou une sauvegarde</translation>
    </message>
    <message>
        <source>Open the folder of a safe…</source>
        <translation>Ouvrir le dossier d’un coffre…</translation>
    </message>
    <message>
        <source>From cloud folder (%1)</source>
        <translation>Depuis le dossier cloud (%1)</translation>
    </message>
    <message>
        <source>There is no safe yet. Make a new one, or import an archive.</source>
        <translation>Il n’y a pas encore de coffre. Créez-en un, ou importez une archive.</translation>
    </message>
</context>
<context>
    <name>SaveLoginDialog</name>
    <message>
        <source>Save login</source>
        <translation>Enregistrer l’identifiant</translation>
    </message>
    <message>
        <source>Never for this site</source>
        <translation>Jamais pour ce site</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Mot de passe maître</translation>
    </message>
    <message>
        <source>The login is in the safe now, but it could not be written to the disk. Check the free space and the permissions, then try again.</source>
        <translation>L’identifiant est maintenant dans le coffre, mais n’a pas pu être écrit sur le disque. Vérifiez l’espace libre et les droits d’accès, puis réessayez.</translation>
    </message>
    <message>
        <source>Your safe is locked. Unlock it to save this login.</source>
        <translation>Votre coffre est verrouillé. Déverrouillez-le pour enregistrer cet identifiant.</translation>
    </message>
    <message>
        <source>Your safe has this login already, so there is nothing to save.</source>
        <translation>Votre coffre contient déjà cet identifiant&#xa0;: il n’y a rien à enregistrer.</translation>
    </message>
    <message>
        <source>Already saved</source>
        <translation>Déjà enregistré</translation>
    </message>
    <message>
        <source>Update this login?</source>
        <translation>Mettre à jour cet identifiant&#x202f;?</translation>
    </message>
    <message>
        <source>Save this login?</source>
        <translation>Enregistrer cet identifiant&#x202f;?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Ouvrir quand même</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Déverrouillage…</translation>
    </message>
    <message numerus="yes">
        <source>What you typed is kept for %n more seconds, then forgotten.</source>
        <translation>
            <numerusform>Votre saisie est conservée encore %n&#xa0;seconde, puis oubliée.</numerusform>
            <numerusform>Votre saisie est conservée encore %n&#xa0;secondes, puis oubliée.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no password to save. Type it in, or choose Not now.</source>
        <translation>Il n’y a pas de mot de passe à enregistrer. Saisissez-le, ou choisissez «&#x202f;Pas maintenant&#x202f;».</translation>
    </message>
    <message>
        <source>That login is no longer in the safe. Choose again where to save.</source>
        <translation>Cet identifiant n’est plus dans le coffre. Choisissez à nouveau où enregistrer.</translation>
    </message>
    <message>
        <source>The list of sites could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>La liste des sites n’a pas pu être écrite. Vérifiez l’espace libre et les droits d’accès au dossier des paramètres.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>You declined logins of this site before. If you do so now, it is not offered again until you lock the safe.</source>
        <translation>Vous avez déjà refusé des identifiants de ce site. Si vous refusez encore, rien ne sera plus proposé avant le verrouillage du coffre.</translation>
    </message>
</context>
<context>
    <name>SaveLoginForm</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>A new login</source>
        <translation>Un nouvel identifiant</translation>
    </message>
    <message>
        <source>Until now: %1</source>
        <translation>Jusqu’ici&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>favourite</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>favori</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>corbeille</translation>
    </message>
    <message>
        <source>weak</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>faible</translation>
    </message>
    <message>
        <source>expired</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>expiré</translation>
    </message>
    <message>
        <source>expiring</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>expirant</translation>
    </message>
    <message>
        <source>kind</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>type</translation>
    </message>
    <message>
        <source>is</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>état</translation>
    </message>
    <message>
        <source>Finds items with all the words in title, user name, address or note.
kind:card shows one kind of item.
is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.</source>
        <comment>with the words that are translated as parts of a search</comment>
        <translation>Trouve les éléments dont le titre, le nom d’utilisateur, l’adresse ou la note contiennent tous les mots.
type:carte affiche un seul type d’éléments.
état:favori, état:faible, état:expirant, état:expiré et état:corbeille affichent les éléments selon leur état.</translation>
    </message>
</context>
<context>
    <name>SecretInput</name>
    <message>
        <source>Generate password</source>
        <translation>Générer un mot de passe</translation>
    </message>
    <message>
        <source>Generate password (Ctrl+G)</source>
        <translation>Générer un mot de passe (Ctrl+G)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copy to clipboard (Ctrl+C)</source>
        <translation>Copier dans le presse-papiers (Ctrl+C)</translation>
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
        <translation>Impossible d’enregistrer les modifications.</translation>
    </message>
    <message>
        <source>Some changes could not be written; what was there before still is. Check that the folder of the safe can be written to and that there is free space, then try again:
%1</source>
        <translation>Certaines modifications n’ont pas pu être écrites&#x202f;; le contenu précédent est toujours là. Vérifiez que le dossier du coffre est accessible en écriture et qu’il reste de l’espace libre, puis réessayez&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Lose changes</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation>
            <numerusform>%n élément sélectionné</numerusform>
            <numerusform>%n éléments sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>aucun choisi</translation>
    </message>
    <message>
        <source>%1: choose</source>
        <translation>%1&#xa0;: choisir</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Chercher un paramètre</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>No setting matches the search.</source>
        <translation>Aucun paramètre ne correspond à la recherche.</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Everything in the program is shown in it, at once.</source>
        <translation>Tout le programme s’affiche aussitôt dans cette langue.</translation>
    </message>
    <message>
        <source>The language was not changed.</source>
        <translation>La langue n’a pas été changée.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>new version download</source>
        <translation>nouvelle version téléchargement telechargement mise à jour</translation>
    </message>
    <message>
        <source>Time until it locks</source>
        <translation>Délai avant verrouillage</translation>
    </message>
    <message>
        <source>How long neither keyboard nor mouse are used, in any program.</source>
        <translation>Durée sans clavier ni souris, tous programmes confondus.</translation>
    </message>
    <message>
        <source>auto-lock idle minutes away</source>
        <translation>verrouillage automatique inactivité inactivite minutes absence veille</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Lock after inactivity</source>
        <translation>Verrouiller après inactivité</translation>
    </message>
    <message>
        <source>The safe locks when you leave the computer alone.</source>
        <translation>Le coffre se verrouille quand vous laissez l’ordinateur sans surveillance.</translation>
    </message>
    <message>
        <source>auto-lock idle away</source>
        <translation>verrouillage automatique inactivité inactivite absence veille</translation>
    </message>
    <message>
        <source>Lock when the screen saver starts</source>
        <translation>Verrouiller avec l’économiseur d’écran</translation>
    </message>
    <message>
        <source>The safe locks together with the screen.</source>
        <translation>Le coffre se verrouille en même temps que l’écran.</translation>
    </message>
    <message>
        <source>auto-lock</source>
        <translation>verrouillage automatique économiseur economiseur ecran veille</translation>
    </message>
    <message>
        <source>Clear copied values after 60 seconds</source>
        <translation>Effacer les valeurs copiées après 60&#xa0;secondes</translation>
    </message>
    <message>
        <source>What you copied from the safe does not stay on the clipboard, where other programs can read it.</source>
        <translation>Ce que vous copiez depuis le coffre ne reste pas dans le presse-papiers, où d’autres programmes peuvent le lire.</translation>
    </message>
    <message>
        <source>clipboard copy password wipe</source>
        <translation>presse-papiers copier copie mot de passe effacer</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Remplir et envoyer</translation>
    </message>
    <message>
        <source>Log in from the main window</source>
        <translation>Connexion depuis la fenêtre principale</translation>
    </message>
    <message>
        <source>Whether the page&apos;s form is only filled or also sent. A login can have its own way.</source>
        <translation>Le formulaire de la page est rempli, ou rempli puis envoyé. Chaque identifiant peut en décider autrement.</translation>
    </message>
    <message>
        <source>automatic form enter</source>
        <translation>automatique formulaire remplir saisie entrée entree</translation>
    </message>
    <message>
        <source>Log in from the quick-access window</source>
        <translation>Connexion depuis la fenêtre d’accès rapide</translation>
    </message>
    <message>
        <source>The same for logins that you choose while you are in the browser.</source>
        <translation>De même pour les identifiants que vous choisissez depuis le navigateur.</translation>
    </message>
    <message>
        <source>automatic form enter extension plugin</source>
        <translation>automatique formulaire remplir saisie entrée entree extension module</translation>
    </message>
    <message>
        <source>Open addresses in</source>
        <translation>Ouvrir les adresses dans</translation>
    </message>
    <message>
        <source>Where the browser shows the page of a login that is not open yet.</source>
        <translation>Endroit où le navigateur affiche la page d’un identifiant qui n’est pas encore ouverte.</translation>
    </message>
    <message>
        <source>tab window extension plugin</source>
        <translation>onglet fenêtre fenetre extension module</translation>
    </message>
    <message>
        <source>The current tab</source>
        <translation>L’onglet actuel</translation>
    </message>
    <message>
        <source>A new tab</source>
        <translation>Un nouvel onglet</translation>
    </message>
    <message>
        <source>A new window</source>
        <translation>Une nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <source>A safe that has not changed since is not copied again.</source>
        <translation>Un coffre inchangé depuis n’est pas copié à nouveau.</translation>
    </message>
    <message>
        <source>interval how often</source>
        <translation>intervalle fréquence frequence</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Chaque mois</translation>
    </message>
    <message>
        <source>Folder for backups</source>
        <translation>Dossier des sauvegardes</translation>
    </message>
    <message>
        <source>Best on another disk. The copies are encrypted like the safe.</source>
        <translation>De préférence sur un autre disque. Les copies sont chiffrées comme le coffre.</translation>
    </message>
    <message>
        <source>path directory archive</source>
        <translation>chemin répertoire repertoire emplacement archive</translation>
    </message>
    <message>
        <source>Copies to keep</source>
        <translation>Copies à conserver</translation>
    </message>
    <message>
        <source>Of each safe; when there are more, the oldest are deleted.</source>
        <translation>De chaque coffre&#x202f;; au-delà, les plus anciennes sont supprimées.</translation>
    </message>
    <message>
        <source>number archives</source>
        <translation>nombre archives</translation>
    </message>
    <message>
        <source>This folder cannot be written to: %1</source>
        <translation>Ce dossier n’est pas accessible en écriture&#xa0;: %1</translation>
    </message>
    <message>
        <source>Back up automatically</source>
        <translation>Sauvegarder automatiquement</translation>
    </message>
    <message>
        <source>Copies of all safes that open with their master password.</source>
        <translation>Copies de tous les coffres&#x202f;; elles s’ouvrent avec leur mot de passe maître.</translation>
    </message>
    <message>
        <source>archive copy</source>
        <translation>archive copie sauvegarde</translation>
    </message>
    <message>
        <source>Lock Safe hotkey:</source>
        <translation>Verrouiller le coffre&#xa0;:</translation>
    </message>
    <message>
        <source>shortcut key combination</source>
        <translation>raccourci touche combinaison clavier</translation>
    </message>
    <message>
        <source>Browser plugin hotkey:</source>
        <translation>Raccourci de l’extension&#xa0;:</translation>
    </message>
    <message>
        <source>Opens the quick-access window for the page in your browser.</source>
        <translation>Ouvre la fenêtre d’accès rapide pour la page affichée dans votre navigateur.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Light or dark, always or as the system has it.</source>
        <translation>Claires ou sombres, toujours ou comme le système.</translation>
    </message>
    <message>
        <source>theme mode night appearance</source>
        <translation>thème theme mode nuit apparence</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claires</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombres</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Of all texts, with the controls around them.</source>
        <translation>De tous les textes et des commandes qui les entourent.</translation>
    </message>
    <message>
        <source>font large small zoom scale</source>
        <translation>police grand petit zoom échelle echelle caractères caracteres</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>The text size was not changed.</source>
        <translation>La taille du texte n’a pas été changée.</translation>
    </message>
    <message>
        <source>No animations</source>
        <translation>Aucune animation</translation>
    </message>
    <message>
        <source>When it is off, the system&apos;s setting for animations holds.</source>
        <translation>Si cette option est désactivée, le réglage du système pour les animations s’applique.</translation>
    </message>
    <message>
        <source>reduced motion effects</source>
        <translation>mouvement réduit reduit effets</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, but they could not be written to %1</source>
        <translation>Les paramètres restent valables jusqu’à la fermeture du programme, mais n’ont pas pu être écrits dans %1</translation>
    </message>
    <message>
        <source>Locks the safe from any program; on Wayland, from this program&apos;s windows.</source>
        <translation>Verrouille le coffre depuis tout programme ; sous Wayland, depuis les fenêtres de celui-ci.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Dossier cloud</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Mot de passe maître</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Celui qui ouvre ce coffre.</translation>
    </message>
    <message>
        <source>change hint</source>
        <translation>changer modifier indice</translation>
    </message>
    <message>
        <source>Last backup</source>
        <translation>Dernière sauvegarde</translation>
    </message>
    <message>
        <source>When each safe was backed up, and when that is done next.</source>
        <translation>Date de sauvegarde de chaque coffre, et prochaine échéance.</translation>
    </message>
    <message>
        <source>back up now restore archive</source>
        <translation>sauvegarder maintenant restaurer restauration archive</translation>
    </message>
    <message>
        <source>Keeps safes the same on several computers.</source>
        <translation>Garde les coffres identiques sur plusieurs ordinateurs.</translation>
    </message>
    <message>
        <source>synchronise sync mirror share provider account computers</source>
        <translation>synchroniser synchronisation synchro sync miroir partager partage fournisseur compte ordinateurs</translation>
    </message>
    <message>
        <source>Browsers and extensions</source>
        <translation>Navigateurs et extensions</translation>
    </message>
    <message>
        <source>In which browsers the extension is, and which may connect.</source>
        <translation>Dans quels navigateurs se trouve l’extension, et lesquels peuvent se connecter.</translation>
    </message>
    <message>
        <source>plugin install approve connect chrome chromium firefox</source>
        <translation>extension module installer installation autoriser connecter connexion chrome chromium firefox</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Sites sans proposition d’enregistrement</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Il n’est pas proposé d’enregistrer les identifiants que vous y saisissez.</translation>
    </message>
    <message>
        <source>never save login ask again</source>
        <translation>jamais enregistrer identifiant demander nouveau redemander</translation>
    </message>
    <message>
        <source>Show the icons of web sites</source>
        <translation>Afficher les icônes des sites web</translation>
    </message>
    <message>
        <source>They are fetched from the sites of your logins and kept in the safe.</source>
        <translation>Elles sont récupérées sur les sites de vos identifiants et conservées dans le coffre.</translation>
    </message>
    <message>
        <source>favicon logo picture download</source>
        <translation>favicon logo icône icone image télécharger telecharger</translation>
    </message>
    <message>
        <source>The setting holds until the program ends, but it could not be stored.</source>
        <translation>Le paramètre reste valable jusqu’à la fermeture du programme, mais n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Asks once a day whether there is a newer version. Sent are your version and a number made for this computer, nothing else.</source>
        <translation>Demande une fois par jour s’il existe une version plus récente. Sont envoyés votre version et un numéro créé pour cet ordinateur, rien d’autre.</translation>
    </message>
    <message>
        <source>Newest version</source>
        <translation>Dernière version</translation>
    </message>
    <message>
        <source>Which version there is, and when was last looked for it.</source>
        <translation>Quelle version existe et quand elle a été recherchée pour la dernière fois.</translation>
    </message>
    <message>
        <source>update check download</source>
        <translation>mise à jour vérifier téléchargement</translation>
    </message>
    <message>
        <source>Your desktop does not tell when you are away. The safe locks with the screen and when the computer sleeps.</source>
        <translation>Votre bureau n’indique pas quand vous êtes absent. Le coffre se verrouille avec l’écran et lorsque l’ordinateur se met en veille.</translation>
    </message>
    <message>
        <source>Hide the windows from screenshots</source>
        <translation>Masquer les fenêtres dans les captures d’écran</translation>
    </message>
    <message>
        <source>What is in the safe appears in no recording and on no shared screen.</source>
        <translation>Le contenu du coffre n’apparaît dans aucun enregistrement ni sur aucun écran partagé.</translation>
    </message>
    <message>
        <source>screen capture sharing meeting</source>
        <translation>capture écran partage réunion enregistrement</translation>
    </message>
</context>
<context>
    <name>SetupWizard</name>
    <message>
        <source>Set up Glaceron Password Manager</source>
        <translation>Configurer Glaceron Password Manager</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>ShortcutTable</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Into the list and back</source>
        <translation>Vers la liste et retour</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Ajouter un élément</translation>
    </message>
    <message>
        <source>Edit the item</source>
        <translation>Modifier l’élément</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Leave the editor, or clear the search</source>
        <translation>Quitter l’éditeur ou effacer la recherche</translation>
    </message>
    <message>
        <source>Copy the user name</source>
        <translation>Copier le nom d’utilisateur</translation>
    </message>
    <message>
        <source>Copy the password, or the number of a card or document</source>
        <translation>Copier le mot de passe, ou le numéro d’une carte ou d’un document</translation>
    </message>
    <message>
        <source>Attach the copied file to the item</source>
        <translation>Joindre le fichier copié à l’élément</translation>
    </message>
    <message>
        <source>Select all items</source>
        <translation>Sélectionner tous les éléments</translation>
    </message>
    <message>
        <source>Select more items</source>
        <translation>Sélectionner d’autres éléments</translation>
    </message>
    <message>
        <source>Menu of the items</source>
        <translation>Menu des éléments</translation>
    </message>
    <message>
        <source>Remove the items</source>
        <translation>Supprimer les éléments</translation>
    </message>
    <message>
        <source>Take the last removal back</source>
        <translation>Annuler la dernière suppression</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Lock the safe</source>
        <translation>Verrouiller le coffre</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Afficher cette liste</translation>
    </message>
    <message>
        <source>Log in, or fill in a card or identity</source>
        <translation>Se connecter, ou remplir une carte ou une identité</translation>
    </message>
    <message>
        <source>Log in or fill in, from the list or the search</source>
        <translation>Se connecter ou remplir, depuis la liste ou la recherche</translation>
    </message>
    <message>
        <source>Open the item, in a narrow window</source>
        <translation>Ouvrir l’élément, dans une fenêtre étroite</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> ou </translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>Aucun navigateur doté de l’extension n’est connecté</translation>
    </message>
    <message>
        <source>What it was made for is no longer edited</source>
        <translation>L’élément auquel il était destiné n’est plus en cours de modification</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Changer de mot de passe…</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Mot de passe maître</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Celui qui ouvre ce coffre.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Password generator</source>
        <translation>Générateur de mots de passe</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>%1 · unlocked</source>
        <translation>%1 · ouvert</translation>
    </message>
    <message>
        <source>Finish setting up</source>
        <translation>Terminer la configuration</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>less than 1 KB</source>
        <translation>moins de 1 Ko</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
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
        <translation>%1&#xa0;s</translation>
    </message>
</context>
<context>
    <name>SortButton</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Les plus utilisés</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernier usage</translation>
    </message>
    <message>
        <source>Last changed</source>
        <translation>Dernier changement</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Plus récents</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Tri&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>TrashBar</name>
    <message>
        <source>Restore all</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Tout vider</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open Main Window</source>
        <translation>Ouvrir la fenêtre</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Générateur de mots de passe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Quick Access</source>
        <translation>Accès rapide</translation>
    </message>
</context>
<context>
    <name>UnlockLogic</name>
    <message>
        <source>This safe is not available. Check that its folder is there:
%1</source>
        <translation>Ce coffre n’est pas disponible. Vérifiez que son dossier est présent&#xa0;:
%1</translation>
    </message>
    <message>
        <source>No any safe is selected</source>
        <translation>Aucun coffre n’est sélectionné</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Mot de passe incorrect&#x202f;! Réessayez</translation>
    </message>
    <message>
        <source>The safe could not be read. Check that its folder is there and that you may read it, then try again.</source>
        <translation>Le coffre n’a pas pu être lu. Vérifiez que son dossier est présent et que vous avez le droit de le lire, puis réessayez.</translation>
    </message>
    <message>
        <source>Unlock your safe to go on</source>
        <translation>Déverrouillez votre coffre pour continuer</translation>
    </message>
    <message>
        <source>This safe is on a drive that is not connected. Connect it, then choose the safe again:
%1</source>
        <translation>Ce coffre est sur un disque qui n’est pas branché. Branchez-le, puis choisissez à nouveau le coffre&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Another program on this computer has this safe open. What both change at the same time can get lost, so close it there first.</source>
        <translation>Un autre programme de cet ordinateur a ouvert ce coffre. Ce que les deux modifient en même temps peut se perdre&#xa0;: fermez-le d’abord là-bas.</translation>
    </message>
    <message>
        <source>This safe is open on the computer “%1”, or was when that computer stopped. What both change at the same time can get lost, so close it there first.</source>
        <translation>Ce coffre est ouvert sur l’ordinateur «&#x202f;%1&#x202f;», ou l’était quand celui-ci s’est arrêté. Ce que les deux modifient en même temps peut se perdre&#xa0;: fermez-le d’abord là-bas.</translation>
    </message>
    <message>
        <source>This is the password from before it was changed. Use the new one.</source>
        <translation>C’est le mot de passe d’avant le changement. Utilisez le nouveau.</translation>
    </message>
    <message>
        <source>This is the password from before a change that was interrupted.</source>
        <translation>C’est le mot de passe d’avant un changement qui a été interrompu.</translation>
    </message>
    <message>
        <source>This password was set on another computer. Unlock with the former one; then you are asked for this one.</source>
        <translation>Ce mot de passe a été choisi sur un autre ordinateur. Déverrouillez avec l’ancien ; celui-ci vous sera demandé ensuite.</translation>
    </message>
    <message>
        <source>Looking for this safe. Its drive does not answer yet:
%1</source>
        <translation>Recherche de ce coffre. Son disque ne répond pas encore&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Show…</source>
        <translation>Afficher…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Show the new version</source>
        <translation>Afficher la nouvelle version</translation>
    </message>
    <message>
        <source>Check for a newer version now</source>
        <translation>Rechercher maintenant une version plus récente</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>La version %1 est disponible</translation>
    </message>
    <message>
        <source>You have the newest version, %1</source>
        <translation>Vous avez la dernière version, %1</translation>
    </message>
    <message>
        <source>You have version %1</source>
        <translation>Vous avez la version %1</translation>
    </message>
    <message>
        <source>This program was built without an address to ask for newer versions, so it never looks for them.</source>
        <translation>Ce programme a été construit sans adresse où demander les versions plus récentes et ne les recherche donc jamais.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>There was no answer that could be used. Check the connection to the internet and try again.</source>
        <translation>Aucune réponse utilisable n’est arrivée. Vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Dernière vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Pas encore vérifié</translation>
    </message>
</context>
<context>
    <name>WindowMover</name>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
