<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
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
        <source>less than 1 KB</source>
        <translation>moins de 1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
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
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Non précisé</translation>
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
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
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
    <name>ExtensionPage</name>
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
        <source>In Chromium, Chrome or Edge open the address %1</source>
        <translation>Dans Chromium, Chrome ou Edge, ouvrez l’adresse %1</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Choisissez « Charger l’extension non empaquetée » et le dossier de l’extension</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Dossier de l’extension</translation>
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
        <source>Switch on “Developer mode”</source>
        <translation>Activez « Mode développeur »</translation>
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
        <source>The extension fills your logins into the pages they belong to.</source>
        <translation>L’extension remplit vos identifiants dans les pages auxquelles ils appartiennent.</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>Le programme attend dans la zone de notification quand vous fermez sa fenêtre.</translation>
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
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
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
        <source>Restore all</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Tout vider</translation>
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
        <source>Log in</source>
        <translation>Connexion</translation>
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
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Connexion</translation>
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
        <source>search</source>
        <translation>rechercher</translation>
    </message>
    <message>
        <source>new item</source>
        <translation>nouvel élément</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>modifier</translation>
    </message>
    <message>
        <source>save</source>
        <translation>enregistrer</translation>
    </message>
    <message>
        <source>log in</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>copy the user name</source>
        <translation>copier le nom d’utilisateur</translation>
    </message>
    <message>
        <source>copy the password</source>
        <translation>copier le mot de passe</translation>
    </message>
    <message>
        <source>password generator</source>
        <translation>générateur de mots de passe</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>verrouiller</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>paramètres</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>quitter</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>une commande de ce programme</translation>
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
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Changer de coffre</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Coffre&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (indisponible)</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Créer un coffre…</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
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
        <source>Looks from time to time whether there is a newer version.</source>
        <translation>Vérifie de temps à autre s’il existe une version plus récente.</translation>
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
        <source>Log in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Log in, from the list or the search</source>
        <translation>Se connecter, depuis la liste ou la recherche</translation>
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
