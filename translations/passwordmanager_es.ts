<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
<context>
    <name>ApprovalDesk</name>
    <message>
        <source>Let Firefox connect?</source>
        <translation>¿Permitir que Firefox se conecte?</translation>
    </message>
    <message>
        <source>An extension in Firefox wants to connect to this program. If you allow it, it can fill your logins into pages and offer to save new ones.

Allow it if you have just added the extension to Firefox, or to another profile of it. If you do not know where this comes from, choose “Don&apos;t allow”.

You can change your mind in the settings, on the page “Browser”.</source>
        <translation>Una extensión de Firefox quiere conectarse con este programa. Si lo permite, podrá rellenar sus accesos en las páginas y ofrecer guardar los nuevos.

Permítalo si acaba de añadir la extensión a Firefox o a otro de sus perfiles. Si no sabe de dónde viene esto, elija “No permitir”.

Puede cambiar de opinión en los ajustes, en la página “Navegador”.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Don&apos;t allow</source>
        <translation>No permitir</translation>
    </message>
</context>
<context>
    <name>ApprovalsPanel</name>
    <message>
        <source>None yet. When one wants to connect, you are asked.</source>
        <translation>Ninguna todavía. Cuando una quiera conectarse, se le preguntará.</translation>
    </message>
    <message>
        <source>Each Firefox profile gives the extension an id of its own, so you say which ones may connect.</source>
        <translation>Cada perfil de Firefox da a la extensión un identificador propio; por eso usted dice cuáles pueden conectarse.</translation>
    </message>
    <message>
        <source>Extensions in Firefox</source>
        <translation>Extensiones en Firefox</translation>
    </message>
    <message>
        <source>%1: may connect</source>
        <translation>%1: puede conectarse</translation>
    </message>
    <message>
        <source>%1: may not connect</source>
        <translation>%1: no puede conectarse</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Permitir %1</translation>
    </message>
</context>
<context>
    <name>ArchiveDesk</name>
    <message>
        <source>Export safe</source>
        <translation>Exportar caja fuerte</translation>
    </message>
    <message>
        <source>GPM file (*.gpm)</source>
        <translation>Archivo GPM (*.gpm)</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>Exportando “%1”…</translation>
    </message>
    <message>
        <source>“%1” was not exported. %2</source>
        <translation>“%1” no se ha exportado. %2</translation>
    </message>
    <message>
        <source>“%1” is exported. Everything in the file is encrypted; it opens with the master password of today:
%2</source>
        <translation>“%1” se ha exportado. Todo en el archivo está cifrado; se abre con la contraseña maestra de hoy:
%2</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read and are not in it.</source>
        <translation>
            <numerusform>%n archivo no se pudo leer y no está incluido.</numerusform>
            <numerusform>%n archivos no se pudieron leer y no están incluidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message>
        <source>Open GPM file on your computer</source>
        <translation>Abrir un archivo GPM de su equipo</translation>
    </message>
    <message>
        <source>Import safe</source>
        <translation>Importar caja fuerte</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>Importando “%1”…</translation>
    </message>
    <message>
        <source>Import from &quot;%1&quot; failed!</source>
        <translation>¡No se pudo importar “%1”!</translation>
    </message>
    <message>
        <source>“%1” is now in the list of your safes. It opens with the master password that it had when the file was made.</source>
        <translation>“%1” está ahora en la lista de sus cajas fuertes. Se abre con la contraseña maestra que tenía cuando se hizo el archivo.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Abrirla</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Restaurar copia</translation>
    </message>
    <message>
        <source>Restoring “%1”…</source>
        <translation>Restaurando “%1”…</translation>
    </message>
</context>
<context>
    <name>AttachmentActions</name>
    <message>
        <source>Maximum attachment file size is %1 megabytes</source>
        <translation>El tamaño máximo de un adjunto es de %1 megabytes</translation>
    </message>
    <message>
        <source>This is no file, or it can not be read</source>
        <translation>No es un archivo o no se puede leer</translation>
    </message>
    <message>
        <source>The folder of the safe is full or can not be written to</source>
        <translation>La carpeta de la caja fuerte está llena o no se puede escribir en ella</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Remove the copy now</source>
        <translation>Eliminar la copia ahora</translation>
    </message>
    <message>
        <source>Its file is missing in the safe</source>
        <translation>Su archivo falta en la caja fuerte</translation>
    </message>
    <message>
        <source>%1 · encrypted</source>
        <translation>%1 · cifrado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t attach.</source>
        <translation>No se puede adjuntar.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Can&apos;t read the attachment.</source>
        <translation>No se puede leer el adjunto.</translation>
    </message>
    <message>
        <source>The file of %1 in the safe is missing or damaged. A backup may hold it undamaged.</source>
        <translation>El archivo %1 falta en la caja fuerte o está dañado. Puede que una copia de seguridad lo conserve intacto.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se ha guardado %1</translation>
    </message>
    <message>
        <source>Can&apos;t save the attachment.</source>
        <translation>No se puede guardar el adjunto.</translation>
    </message>
    <message>
        <source>%1 could not be written. Check the free space and the permissions there, or choose another place.</source>
        <translation>No se ha podido escribir %1. Conviene comprobar el espacio libre y los permisos en ese lugar, o elegir otro.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>No se ha abierto</translation>
    </message>
    <message>
        <source>%1 is a program, or can run one. It can be saved and looked at there.</source>
        <translation>%1 es un programa o puede ejecutar uno. Se puede guardar y examinar fuera de aquí.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Can&apos;t open the attachment.</source>
        <translation>No se puede abrir el adjunto.</translation>
    </message>
    <message>
        <source>No private copy of %1 could be made. Check the free space, and whether the preview shows it.</source>
        <translation>No se ha podido crear una copia privada de %1. Conviene comprobar el espacio libre y si la vista previa lo muestra.</translation>
    </message>
    <message>
        <source>No program was found that opens %1. It can be saved instead.</source>
        <translation>No se ha encontrado ningún programa que abra %1. En su lugar, se puede guardar.</translation>
    </message>
    <message>
        <source>“%1” is open in another program.</source>
        <translation>«%1» está abierto en otro programa.</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation>
            <numerusform>%n adjunto está abierto en otro programa.</numerusform>
            <numerusform>%n adjuntos están abiertos en otros programas.</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy lies readable in a private folder until the safe locks. It can not be written to: changes made there are not taken back into the safe. Save them under another name and attach that file.</source>
        <translation>Hasta que se bloquee la caja fuerte hay una copia legible en una carpeta privada. Es de solo lectura: los cambios que se hagan en ella no vuelven a la caja fuerte. Hay que guardarlos con otro nombre y adjuntar ese archivo.</translation>
    </message>
    <message>
        <source>Can&apos;t remove the copy.</source>
        <translation>No se puede eliminar la copia.</translation>
    </message>
    <message>
        <source>Another program may still hold it open. It is tried again when the safe locks.</source>
        <translation>Puede que otro programa aún la tenga abierta. Se volverá a intentar cuando se bloquee la caja fuerte.</translation>
    </message>
</context>
<context>
    <name>AttachmentInput</name>
    <message>
        <source>Picture %1.png</source>
        <translation>Imagen %1.png</translation>
    </message>
</context>
<context>
    <name>AttachmentPreview</name>
    <message>
        <source>There is no preview for this kind of file.</source>
        <translation>No hay vista previa para este tipo de archivo.</translation>
    </message>
    <message>
        <source>This is the beginning; save the file to see all of it.</source>
        <translation>Esto es solo el principio; para verlo todo hay que guardar el archivo.</translation>
    </message>
    <message>
        <source>Letters of one width</source>
        <translation>Letra monoespaciada</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Abrir en otro programa</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
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
        <translation>Mostrar %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Abrir en otro programa</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
    </message>
</context>
<context>
    <name>AttachmentsCard</name>
    <message>
        <source>Attach files…</source>
        <translation>Adjuntar archivos…</translation>
    </message>
    <message>
        <source>Files and pictures can also be dropped here, or pasted with Ctrl+V</source>
        <translation>También se pueden soltar aquí archivos e imágenes, o pegarlos con Ctrl+V</translation>
    </message>
    <message>
        <source>Being encrypted…</source>
        <translation>Cifrando…</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation>Soltar para adjuntar</translation>
    </message>
</context>
<context>
    <name>BackupRow</name>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurar una copia…</translation>
    </message>
    <message>
        <source>Backing up</source>
        <translation>Copia en curso</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>There is no safe to back up yet.</source>
        <translation>Aún no hay ninguna caja fuerte que copiar.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Copiar ahora</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Haciendo copias…</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Leyendo las copias…</translation>
    </message>
    <message>
        <source>You can go on working.</source>
        <translation>Puede seguir trabajando.</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>mañana</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>a day, a time of day</comment>
        <translation>%1 a las %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Damaged, can&apos;t be restored · %1</source>
        <translation>Dañada, no se puede restaurar · %1</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Última copia: %1</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Aún sin copia</translation>
    </message>
    <message>
        <source>Automatic backups are off.</source>
        <translation>Las copias automáticas están desactivadas.</translation>
    </message>
    <message>
        <source>Next backup: in a moment</source>
        <translation>Próxima copia: en un momento</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próxima copia: %1</translation>
    </message>
    <message>
        <source>The folder for backups is not there. Connect its drive, or choose another folder.</source>
        <translation>La carpeta de las copias no está. Conecte su unidad o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The folder for backups can&apos;t be written to. Choose another folder.</source>
        <translation>No se puede escribir en la carpeta de las copias. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>%1: not there, or it can&apos;t be read</source>
        <translation>%1: no está o no se puede leer</translation>
    </message>
    <message>
        <source>%1: not backed up yet</source>
        <translation>%1: aún sin copia</translation>
    </message>
    <message>
        <source>%1: %2, unchanged since</source>
        <translation>%1: %2, sin cambios desde entonces</translation>
    </message>
    <message>
        <source>%1: %2, changed since</source>
        <translation>%1: %2, con cambios desde entonces</translation>
    </message>
    <message>
        <source>Backed up and checked: %1.</source>
        <translation>Copiadas y comprobadas: %1.</translation>
    </message>
    <message>
        <source>Unchanged since the last backup: %1.</source>
        <translation>Sin cambios desde la última copia: %1.</translation>
    </message>
    <message>
        <source>Not backed up, as the folder is not there: %1. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Sin copiar, porque la carpeta no está: %1. Si está en una unidad extraíble, conéctela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Not yet backed up, as the password is being changed or it is being archived: %1. This is tried again in a minute.</source>
        <translation>Aún sin copiar, porque se está cambiando la contraseña o archivando: %1. Se intentará de nuevo en un minuto.</translation>
    </message>
    <message>
        <source>Cancelled: %1. Earlier backups are left as they are.</source>
        <translation>Cancelado: %1. Las copias anteriores quedan como están.</translation>
    </message>
    <message>
        <source>Not backed up: “%1”. %2</source>
        <translation>Sin copiar: “%1”. %2</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>1 item could not be read</source>
        <translation>No se ha podido leer 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation>
            <numerusform>No se ha podido leer %n elemento</numerusform>
            <numerusform>No se han podido leer %n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation>
            <numerusform>y %n más en la misma carpeta</numerusform>
            <numerusform>y %n más en la misma carpeta</numerusform>
        </translation>
    </message>
    <message>
        <source>Their files were left as they are. A backup may hold them undamaged:
%1</source>
        <translation>Sus archivos se han dejado como estaban. Puede que una copia de seguridad los conserve intactos:
%1</translation>
    </message>
</context>
<context>
    <name>BusSessionWatch</name>
    <message>
        <source>Locking the safe</source>
        <translation>Bloqueo de la caja fuerte</translation>
    </message>
</context>
<context>
    <name>CapsIndicator</name>
    <message>
        <source>CAPS ON</source>
        <translation>MAYÚS: SÍ</translation>
    </message>
    <message>
        <source>CAPS OFF</source>
        <translation>MAYÚS: NO</translation>
    </message>
</context>
<context>
    <name>CardFace</name>
    <message>
        <source>Click to copy</source>
        <translation>Clic para copiar</translation>
    </message>
</context>
<context>
    <name>CategoryListView</name>
    <message>
        <source>Restore all</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vaciar papelera</translation>
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
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Only you know it. It cannot be recovered.</source>
        <translation>Solo usted la conoce. No se puede recuperar.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Old password:</source>
        <translation>Contraseña antigua:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Contraseña nueva:</translation>
    </message>
    <message>
        <source>Confirm:</source>
        <translation>Confirmar:</translation>
    </message>
    <message>
        <source>Hint:</source>
        <translation>Pista:</translation>
    </message>
</context>
<context>
    <name>ChangePasswordRules</name>
    <message>
        <source>Old password can not be empty</source>
        <translation>La contraseña antigua no puede estar vacía</translation>
    </message>
    <message>
        <source>Old password is invalid. Try again</source>
        <translation>La contraseña antigua no es válida. Inténtelo de nuevo</translation>
    </message>
    <message>
        <source>New password can not be empty</source>
        <translation>La contraseña nueva no puede estar vacía</translation>
    </message>
    <message>
        <source>New password can not be the same as the old password</source>
        <translation>La contraseña nueva no puede ser igual a la antigua</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>La confirmación no puede estar vacía</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>La pista no puede estar vacía</translation>
    </message>
    <message>
        <source>“%1” has its new password. From now on only that one opens it. Backups made before still open with the old one.</source>
        <translation>“%1” tiene su nueva contraseña. Desde ahora solo se abre con ella. Las copias anteriores se siguen abriendo con la antigua.</translation>
    </message>
    <message>
        <source>The password was not changed. The old one still opens “%1”.</source>
        <translation>La contraseña no se cambió. La antigua sigue abriendo “%1”.</translation>
    </message>
    <message>
        <source>“%1” was locked before the change was done. The old password still opens it.</source>
        <translation>“%1” se bloqueó antes de terminar el cambio. La contraseña antigua la sigue abriendo.</translation>
    </message>
    <message>
        <source>The password was not changed: another program is using the safe. The old one still opens it. Wait until the other program is done, then try again.</source>
        <translation>La contraseña no se cambió: otro programa está usando la caja fuerte. La antigua la sigue abriendo. Espere a que el otro programa termine e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The password was not changed: some files of the safe do not open, and under a new password they would be lost. The old one still opens the safe. Bring these files back from a backup or move them out of the folder of the safe, then try again.</source>
        <translation>La contraseña no se cambió: algunos archivos de la caja fuerte no se abren, y con otra contraseña se perderían. La antigua la sigue abriendo. Recupere esos archivos de una copia o sáquelos de la carpeta de la caja fuerte e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The password was not changed: the files of the safe could not be written. The old one still opens it. Check the free space and that the folder of the safe can be written to, then try again.</source>
        <translation>La contraseña no se cambió: no se pudieron escribir los archivos de la caja fuerte. La antigua la sigue abriendo. Compruebe el espacio libre y que se puede escribir en la carpeta de la caja fuerte e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens the safe, but perhaps not every item; this old one still opens them all.</source>
        <translation>Se interrumpió un cambio de la contraseña de “%1”. La contraseña nueva abre la caja fuerte, pero quizá no todos los elementos; esta antigua los abre todos.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens %2 of %3 items; the old one still opens those that were there before. Change nothing now: it would be missing when you go back.</source>
        <translation>Se interrumpió un cambio de la contraseña de “%1”. La contraseña nueva abre %2 de %3 elementos; la antigua abre aún los que había antes. No cambie nada ahora: faltaría al volver atrás.</translation>
    </message>
    <message>
        <source>To go back to the old password, quit the program and open the folder of the safe. Keep a copy of “safe.passid” in another place. Then copy “safe.passid.bak” over “safe.passid”: every item opens with the old password again, and you can change it anew.</source>
        <translation>Para volver a la contraseña antigua, salga del programa y abra la carpeta de la caja fuerte. Guarde una copia de “safe.passid” en otro lugar. Después copie “safe.passid.bak” sobre “safe.passid”: todos los elementos se abren de nuevo con la contraseña antigua, y puede volver a cambiarla.</translation>
    </message>
    <message>
        <source>The change of the password was stopped before it was done, as “%1” had to be saved at once. The old password still opens it. You can change it anew.</source>
        <translation>El cambio de la contraseña se detuvo antes de terminar, porque había que guardar “%1” de inmediato. La contraseña antigua la sigue abriendo. Puede volver a cambiarla.</translation>
    </message>
    <message>
        <source>This new password was not taken: another change of the password is still under way. Wait until it is done, then try again.</source>
        <translation>Esta contraseña nueva no se tomó: otro cambio de la contraseña sigue en curso. Espere a que termine e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>La pista delata la contraseña</translation>
    </message>
</context>
<context>
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Sin indicar</translation>
    </message>
</context>
<context>
    <name>CloudDesk</name>
    <message>
        <source>The copy in the cloud folder is still there.</source>
        <translation>La copia en la carpeta de la nube sigue ahí.</translation>
    </message>
    <message>
        <source>Some of its files could not be removed. Remove the folder yourself if you do not need it:
%1</source>
        <translation>Algunos de sus archivos no se pudieron eliminar. Elimine usted la carpeta si no la necesita:
%1</translation>
    </message>
    <message>
        <source>From the cloud folder</source>
        <translation>De la carpeta de la nube</translation>
    </message>
    <message>
        <source>Bringing “%1” over…</source>
        <translation>Trayendo “%1”…</translation>
    </message>
    <message>
        <source>“%1” is on this computer now, and is kept the same as on your other computers. It opens with its own master password.</source>
        <translation>“%1” está ahora en este equipo y se mantiene igual que en sus otros equipos. Se abre con su propia contraseña maestra.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Abrirla</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise with the cloud folder.</source>
        <translation>No se puede sincronizar con la carpeta de la nube.</translation>
    </message>
</context>
<context>
    <name>CloudImportDialog</name>
    <message>
        <source>From the cloud folder</source>
        <translation>De la carpeta de la nube</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Otra carpeta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Bring over</source>
        <translation>Traer</translation>
    </message>
    <message>
        <source>Safes in the cloud folder</source>
        <translation>Cajas fuertes en la carpeta de la nube</translation>
    </message>
    <message>
        <source>No other safe found</source>
        <translation>No se encontró otra caja fuerte</translation>
    </message>
    <message>
        <source>Safes that you synchronise on another computer appear here as soon as your cloud program has brought them.</source>
        <translation>Las cajas fuertes que sincroniza en otro equipo aparecen aquí en cuanto su programa de la nube las ha traído.</translation>
    </message>
    <message>
        <source>These safes are synchronised by another computer. Bring one over to use it here, too; it opens with its own master password.</source>
        <translation>Estas cajas fuertes las sincroniza otro equipo. Traiga una para usarla también aquí; se abre con su propia contraseña maestra.</translation>
    </message>
    <message>
        <source>%1
made on %2</source>
        <translation>%1
creada el %2</translation>
    </message>
</context>
<context>
    <name>CloudOffer</name>
    <message>
        <source>Bring it over…</source>
        <translation>Traerla…</translation>
    </message>
    <message>
        <source>You have a safe in your cloud folder: “%1”.</source>
        <translation>Tiene una caja fuerte en su carpeta de la nube: “%1”.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n safes in your cloud folder.</source>
        <translation>
            <numerusform>Tiene %n caja fuerte en su carpeta de la nube.</numerusform>
            <numerusform>Tiene %n cajas fuertes en su carpeta de la nube.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloudPanel</name>
    <message>
        <source>No folder of a cloud provider was found. Choose the one that yours keeps the same on all computers, or a folder on a USB stick.</source>
        <translation>No se encontró la carpeta de ningún proveedor. Elija la que el suyo mantiene igual en todos los equipos, o una carpeta en una memoria USB.</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Otra carpeta…</translation>
    </message>
    <message>
        <source>There is no safe yet.</source>
        <translation>Aún no hay ninguna caja fuerte.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Carpeta de la nube</translation>
    </message>
    <message>
        <source>A synchronised safe has an encrypted copy in a folder that your cloud provider carries to your other computers. What you change on one arrives on all.</source>
        <translation>Una caja fuerte sincronizada tiene una copia cifrada en una carpeta que su proveedor lleva a sus otros equipos. Lo que cambia en uno llega a todos.</translation>
    </message>
    <message>
        <source>Personal account: %1</source>
        <translation>Cuenta personal: %1</translation>
    </message>
    <message>
        <source>Business account: %1</source>
        <translation>Cuenta de empresa: %1</translation>
    </message>
    <message>
        <source>Bring over “%1”…</source>
        <translation>Traer “%1”…</translation>
    </message>
    <message>
        <source>Bring over a safe (%1)…</source>
        <translation>Traer una caja fuerte (%1)…</translation>
    </message>
    <message>
        <source>Choose a folder first.</source>
        <translation>Elija primero una carpeta.</translation>
    </message>
    <message>
        <source>Stop synchronising “%1”?</source>
        <translation>¿Dejar de sincronizar “%1”?</translation>
    </message>
    <message>
        <source>The safe on this computer stays as it is. Its copy in the cloud folder can stay for your other computers, or be removed; then they can&apos;t synchronise any more.</source>
        <translation>La caja fuerte de este equipo queda como está. Su copia en la carpeta de la nube puede quedarse para sus otros equipos o eliminarse; entonces ya no podrán sincronizar.</translation>
    </message>
    <message>
        <source>Keep the copy</source>
        <translation>Conservar la copia</translation>
    </message>
    <message>
        <source>Remove the copy</source>
        <translation>Eliminar la copia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>CloudPasswordDialog</name>
    <message>
        <source>New master password</source>
        <translation>Nueva contraseña maestra</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Go on with it</source>
        <translation>Seguir con ella</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The password of “%1” was changed on another computer. Enter the new one to go on synchronising; from then on the safe opens with it here, too.</source>
        <translation>La contraseña de “%1” se cambió en otro equipo. Escriba la nueva para seguir sincronizando; desde entonces la caja fuerte se abre con ella también aquí.</translation>
    </message>
</context>
<context>
    <name>CloudSafeRow</name>
    <message>
        <source>Synchronise now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Enter the new password…</source>
        <translation>Escribir la contraseña nueva…</translation>
    </message>
    <message>
        <source>Synchronise “%1”</source>
        <translation>Sincronizar “%1”</translation>
    </message>
    <message>
        <source>Only on this computer</source>
        <translation>Solo en este equipo</translation>
    </message>
</context>
<context>
    <name>CloudTexts</name>
    <message>
        <source>Synchronised</source>
        <translation>Sincronizada</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Sincronizando…</translation>
    </message>
    <message>
        <source>Waiting for files</source>
        <translation>Esperando archivos</translation>
    </message>
    <message>
        <source>Waiting…</source>
        <translation>Esperando…</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Contraseña nueva</translation>
    </message>
    <message>
        <source>No cloud folder</source>
        <translation>Sin carpeta de la nube</translation>
    </message>
    <message>
        <source>Wrong folder</source>
        <translation>Otra carpeta</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise</source>
        <translation>No se sincroniza</translation>
    </message>
    <message>
        <source>Synchronised %1</source>
        <translation>Sincronizada: %1</translation>
    </message>
    <message>
        <source>Synchronises when the safe is open</source>
        <translation>Se sincroniza cuando la caja fuerte está abierta</translation>
    </message>
    <message>
        <source>Synchronising, %1 of %2</source>
        <translation>Sincronizando, %1 de %2</translation>
    </message>
    <message>
        <source>Waiting for files to arrive</source>
        <translation>Esperando a que lleguen archivos</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n files to arrive</source>
        <translation>
            <numerusform>Esperando a que llegue %n archivo</numerusform>
            <numerusform>Esperando a que lleguen %n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Waits until the safe is free</source>
        <translation>Espera a que la caja fuerte esté libre</translation>
    </message>
    <message>
        <source>The password was changed on another computer</source>
        <translation>La contraseña se cambió en otro equipo</translation>
    </message>
    <message>
        <source>The cloud folder is not there</source>
        <translation>La carpeta de la nube no está</translation>
    </message>
    <message>
        <source>The cloud folder holds another safe</source>
        <translation>La carpeta de la nube contiene otra caja fuerte</translation>
    </message>
    <message>
        <source>The cloud folder can&apos;t be written to</source>
        <translation>No se puede escribir en la carpeta de la nube</translation>
    </message>
    <message>
        <source>The folder of the safe can&apos;t be written to</source>
        <translation>No se puede escribir en la carpeta de la caja fuerte</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them.</source>
        <translation>Sigue solo en cuanto su programa de la nube los haya traído.</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them: %1</source>
        <translation>Sigue solo en cuanto su programa de la nube los haya traído: %1</translation>
    </message>
    <message>
        <source>The safe is being archived, or its password is being changed.</source>
        <translation>La caja fuerte se está archivando, o se está cambiando su contraseña.</translation>
    </message>
    <message>
        <source>Enter the new password, and this computer goes on with it.</source>
        <translation>Escriba la contraseña nueva, y este equipo sigue con ella.</translation>
    </message>
    <message>
        <source>If it is on a drive that can be taken out, connect the drive. If it was moved, turn synchronising off and on again. Nothing is lost in the meantime.
%1</source>
        <translation>Si está en una unidad extraíble, conéctela. Si se movió, desactive y active de nuevo la sincronización. Mientras tanto no se pierde nada.
%1</translation>
    </message>
    <message>
        <source>Nothing was read or changed there. Turn synchronising off and on again to choose another folder.
%1</source>
        <translation>Allí no se leyó ni se cambió nada. Desactive y active de nuevo la sincronización para elegir otra carpeta.
%1</translation>
    </message>
    <message>
        <source>Your changes are in the safe on this computer, but not in the cloud folder. Check the free space and that you may write there; it is tried again every minute.
%1</source>
        <translation>Sus cambios están en la caja fuerte de este equipo, pero no en la carpeta de la nube. Compruebe el espacio libre y que puede escribir allí; se intenta de nuevo cada minuto.
%1</translation>
    </message>
    <message>
        <source>Changes of your other computers could not be taken over. Check the free space and that you may write to the folder of the safe; it is tried again every minute.</source>
        <translation>No se pudieron tomar los cambios de sus otros equipos. Compruebe el espacio libre y que puede escribir en la carpeta de la caja fuerte; se intenta de nuevo cada minuto.</translation>
    </message>
    <message>
        <source>This folder is not there: %1</source>
        <translation>Esta carpeta no está: %1</translation>
    </message>
    <message>
        <source>This folder is part of the safe itself. Choose the folder of your cloud provider, or one on another drive.</source>
        <translation>Esta carpeta es parte de la propia caja fuerte. Elija la carpeta de su proveedor o una en otra unidad.</translation>
    </message>
    <message>
        <source>The safe itself lies in this folder. Choose a folder that does not hold it.</source>
        <translation>La propia caja fuerte está en esta carpeta. Elija una que no la contenga.</translation>
    </message>
    <message>
        <source>Your backups are kept in this folder. Choose another one.</source>
        <translation>En esta carpeta se guardan sus copias. Elija otra.</translation>
    </message>
    <message>
        <source>This folder belongs to another safe. Choose another one.</source>
        <translation>Esta carpeta es de otra caja fuerte. Elija otra.</translation>
    </message>
    <message>
        <source>This folder belongs to the safe “%1”. Choose another one.</source>
        <translation>Esta carpeta es de la caja fuerte “%1”. Elija otra.</translation>
    </message>
    <message>
        <source>Another copy of this safe on this computer is synchronised there already. Turn that off first, or choose another folder.</source>
        <translation>Otra copia de esta caja fuerte en este equipo ya se sincroniza allí. Desactívela primero o elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be written to. Check the free space and that you may write there: %1</source>
        <translation>No se puede escribir en esta carpeta. Compruebe el espacio libre y que puede escribir allí: %1</translation>
    </message>
    <message>
        <source>This is not the password that was set on the other computer. Try again.</source>
        <translation>Esta no es la contraseña que se puso en el otro equipo. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The safe is busy with something else, such as a backup. Try again in a moment.</source>
        <translation>La caja fuerte está ocupada con otra cosa, como una copia. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>The safe on this computer could not be changed; it is as it was. Check the free space, and that every item of the safe can be read, then try again.</source>
        <translation>No se pudo cambiar la caja fuerte de este equipo; está como estaba. Compruebe el espacio libre y que se pueden leer todos sus elementos, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>No se puede escribir la caja fuerte. Compruebe el espacio libre y que puede escribir en la carpeta de sus cajas fuertes.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Se está importando otra caja fuerte. Inténtelo de nuevo cuando termine.</translation>
    </message>
    <message>
        <source>The safe in the cloud folder can&apos;t be read. It may not have arrived whole yet; wait until your cloud program is done, and try again.</source>
        <translation>No se puede leer la caja fuerte de la carpeta de la nube. Quizá no ha llegado entera; espere a que su programa de la nube termine e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>One item came from the cloud folder</source>
        <translation>Ha llegado un elemento de la carpeta de la nube</translation>
    </message>
    <message numerus="yes">
        <source>%n items came from the cloud folder</source>
        <translation>
            <numerusform>Ha llegado %n elemento de la carpeta de la nube</numerusform>
            <numerusform>Han llegado %n elementos de la carpeta de la nube</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was deleted on another computer</source>
        <translation>Se eliminó un elemento en otro equipo</translation>
    </message>
    <message numerus="yes">
        <source>%n items were deleted on another computer</source>
        <translation>
            <numerusform>Se eliminó %n elemento en otro equipo</numerusform>
            <numerusform>Se eliminaron %n elementos en otro equipo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyNotice</name>
    <message>
        <source>Value copied to clipboard</source>
        <translation>Valor copiado al portapapeles</translation>
    </message>
    <message>
        <source>clears in %1 s</source>
        <translation>se borra en %1&#xa0;s</translation>
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
        <translation>Mostrar todos los países</translation>
    </message>
    <message>
        <source>Show all countries (Alt+Down)</source>
        <translation>Mostrar todos los países (Alt+Abajo)</translation>
    </message>
</context>
<context>
    <name>CreateSafeForm</name>
    <message>
        <source>New Safe name</source>
        <translation>Nombre de la caja fuerte</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Create safe failed!</source>
        <translation>¡No se ha podido crear la caja fuerte!</translation>
    </message>
    <message>
        <source>A safe needs an empty folder that you may write to. This one is not:
%1</source>
        <translation>Una caja fuerte necesita una carpeta vacía en la que usted pueda escribir. Esta no lo es:
%1</translation>
    </message>
</context>
<context>
    <name>CreateSafePage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Crear una caja fuerte</translation>
    </message>
    <message>
        <source>Only you know its password. It cannot be recovered.</source>
        <translation>Nadie más conoce su contraseña. No se puede recuperar.</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Aún no hay ninguna caja fuerte
¿Crear una?</translation>
    </message>
    <message>
        <source>Create
another one?</source>
        <translation>¿Crear
otra?</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurar una copia…</translation>
    </message>
    <message>
        <source>Import from an archive…</source>
        <translation>Importar un archivo…</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>En %1</translation>
    </message>
    <message>
        <source>Kept with your other safes</source>
        <translation>Junto a sus otras cajas fuertes</translation>
    </message>
    <message>
        <source>Usual place</source>
        <translation>Lugar habitual</translation>
    </message>
    <message>
        <source>Keep the safe in the usual place</source>
        <translation>Guardar la caja fuerte en el lugar habitual</translation>
    </message>
    <message>
        <source>Choose the folder of the safe…</source>
        <translation>Elegir la carpeta de la caja fuerte…</translation>
    </message>
</context>
<context>
    <name>CreateSafeRules</name>
    <message>
        <source>Safe name can not be empty</source>
        <translation>El nombre de la caja fuerte no puede estar vacío</translation>
    </message>
    <message>
        <source>Password can not be empty</source>
        <translation>La contraseña no puede estar vacía</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>La confirmación no puede estar vacía</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>La pista no puede estar vacía</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>La pista delata la contraseña</translation>
    </message>
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
</context>
<context>
    <name>DeleteSafeDialog</name>
    <message>
        <source>Delete safe</source>
        <translation>Eliminar caja fuerte</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>¿Eliminar “%1” para siempre?</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups stay.</source>
        <translation>Todo lo que contiene desaparecerá de este equipo. Sus copias se conservan.</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups and its copy in the cloud folder stay.</source>
        <translation>Todo lo que contiene desaparecerá de este equipo. Se conservan sus copias y la que está en la carpeta de la nube.</translation>
    </message>
    <message>
        <source>Master password of this safe</source>
        <translation>Contraseña maestra de esta caja fuerte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>¡Contraseña incorrecta! Inténtelo de nuevo</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>Can&apos;t keep the edit.</source>
        <translation>No se puede conservar lo escrito.</translation>
    </message>
    <message>
        <source>What you were typing could not be kept, as its file could not be written. Check the free space and the permissions of the program&apos;s data folder.</source>
        <translation>Lo que se estaba escribiendo no se ha podido conservar porque no se ha podido escribir su archivo. Conviene comprobar el espacio libre y los permisos de la carpeta de datos del programa.</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>an item without a title</source>
        <translation>un elemento sin título</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>You were adding %1 when the safe locked.</source>
        <translation>Se estaba añadiendo %1 cuando se bloqueó la caja fuerte.</translation>
    </message>
    <message>
        <source>You were editing %1 when the safe locked.</source>
        <translation>Se estaba editando %1 cuando se bloqueó la caja fuerte.</translation>
    </message>
    <message>
        <source>What you had typed was kept, encrypted, and is not saved yet.</source>
        <translation>Lo escrito se ha conservado cifrado, pero aún no se ha guardado.</translation>
    </message>
    <message>
        <source>The item was deleted meanwhile. What you had typed can become a new item.</source>
        <translation>Entretanto, el elemento se ha eliminado. Lo escrito se puede convertir en un elemento nuevo.</translation>
    </message>
    <message>
        <source>The item is in the trash now. What you had typed was kept.</source>
        <translation>El elemento está ahora en la papelera. Lo escrito se ha conservado.</translation>
    </message>
    <message>
        <source>The item was changed meanwhile. What you had typed was kept.</source>
        <translation>Entretanto, el elemento se ha modificado. Lo escrito se ha conservado.</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Eliminar el archivo</translation>
    </message>
    <message>
        <source>An edit that was kept could not be read.</source>
        <translation>No se ha podido leer una edición conservada.</translation>
    </message>
    <message>
        <source>Its file is damaged or belongs to another password, and was left as it is:
%1</source>
        <translation>Su archivo está dañado o corresponde a otra contraseña, y se ha dejado como estaba:
%1</translation>
    </message>
    <message>
        <source>%1 is in the trash. What would you like to do with what you had typed?</source>
        <translation>Entretanto, %1 ha ido a la papelera. ¿Qué hacer con lo escrito?</translation>
    </message>
    <message>
        <source>%1 was changed after you had begun. What would you like to do with what you had typed?</source>
        <translation>Entretanto, %1 se ha modificado. ¿Qué hacer con lo escrito?</translation>
    </message>
    <message>
        <source>Continue as a new item</source>
        <translation>Crear un elemento nuevo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replace the change</source>
        <translation>Reemplazar el cambio</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Do you want to discard what you had typed about %1?
It can not be restored.</source>
        <translation>¿Descartar lo escrito sobre %1?
No se podrá restaurar.</translation>
    </message>
</context>
<context>
    <name>ExcludedSitesPanel</name>
    <message>
        <source>None. “Never for this site” puts one here.</source>
        <translation>Ninguno. “Nunca en este sitio” añade uno aquí.</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Volver a preguntar</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Sitios sin ofrecimiento</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>No se ofrece guardar los accesos que escriba en ellos.</translation>
    </message>
    <message>
        <source>The list could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>No se pudo escribir la lista. Compruebe el espacio libre y los permisos de la carpeta de ajustes.</translation>
    </message>
</context>
<context>
    <name>ExpiryText</name>
    <message>
        <source>Expired</source>
        <translation>Caducado</translation>
    </message>
    <message>
        <source>Expires today</source>
        <translation>Caduca hoy</translation>
    </message>
    <message>
        <source>Expires in 1 day</source>
        <translation>Caduca en 1&#xa0;día</translation>
    </message>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation>
            <numerusform>Caduca en %n&#xa0;día</numerusform>
            <numerusform>Caduca en %n&#xa0;días</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The folder of the safe is not there. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>La carpeta de la caja fuerte no está disponible. Si se encuentra en una unidad extraíble, hay que conectarla y volver a intentarlo.</translation>
    </message>
    <message>
        <source>There is no safe in the folder any more.</source>
        <translation>Ya no hay ninguna caja fuerte en la carpeta.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed, or it is being archived already. Try again when that is done.</source>
        <translation>Se está cambiando la contraseña de la caja fuerte o ya se está exportando. Cuando termine, se puede volver a intentar.</translation>
    </message>
    <message>
        <source>Some of the safe&apos;s files can&apos;t be read. Check that its folder is there and that you may read and write it.</source>
        <translation>Algunos archivos de la caja fuerte no se pueden leer. Conviene comprobar que su carpeta está disponible y que hay permiso de lectura y escritura.</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written. Check the free space and that you may write to its folder, or choose another one.</source>
        <translation>No se puede escribir el archivo comprimido. Conviene comprobar el espacio libre y que hay permiso para escribir en su carpeta, o elegir otra.</translation>
    </message>
    <message>
        <source>The safe holds more than the 4 GiB that fit into an archive. Copy its folder instead, or take out large attachments.</source>
        <translation>La caja fuerte supera los 4&#xa0;GiB que caben en un archivo comprimido. En su lugar, se puede copiar su carpeta o quitar los adjuntos grandes.</translation>
    </message>
    <message>
        <source>The archive could not be read back after it was written, and was removed. Choose a folder on another drive.</source>
        <translation>El archivo comprimido no se ha podido volver a leer después de escribirlo y se ha eliminado. Hay que elegir una carpeta de otra unidad.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</source>
        <translation>
            <numerusform>%n elemento está ahora en “%1”. Cualquiera que abra el archivo puede leerlo: elimínelo cuando ya no haga falta.</numerusform>
            <numerusform>%n elementos están ahora en “%1”. Cualquiera que abra el archivo puede leerlos: elimínelo cuando ya no haga falta.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file cannot be written, and nothing of it is left. Check the free space and the permissions, or choose another folder:
%1</source>
        <translation>No se puede escribir el archivo, y no ha quedado nada de él. Compruebe el espacio libre y los permisos, o elija otra carpeta:
%1</translation>
    </message>
    <message>
        <source>The safe was locked before the file was written. Nothing of it is left.</source>
        <translation>La caja fuerte se bloqueó antes de escribir el archivo. No ha quedado nada de él.</translation>
    </message>
    <message>
        <source>Export items</source>
        <translation>Exportar elementos</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected items</source>
        <translation>
            <numerusform>El elemento seleccionado</numerusform>
            <numerusform>Los %n elementos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>All items of the safe (%1)</source>
        <translation>Todos los elementos de la caja fuerte (%1)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>JSON: everything, for another safe</source>
        <translation>JSON: todo, para otra caja fuerte</translation>
    </message>
    <message>
        <source>CSV: logins, for browsers and other programs</source>
        <translation>CSV: accesos, para navegadores y otros programas</translation>
    </message>
    <message>
        <source>Password of the safe</source>
        <translation>Contraseña de la caja fuerte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Password of the safe “%1”</source>
        <translation>Contraseña de la caja fuerte “%1”</translation>
    </message>
    <message>
        <source>The file is not encrypted: everyone who gets hold of it can read your passwords. Do not leave it lying, nor in a folder that is synchronised, and delete it as soon as it has served.</source>
        <translation>El archivo no está cifrado: quien lo consiga puede leer sus contraseñas. No lo deje por ahí, ni en una carpeta sincronizada, y elimínelo en cuanto ya no haga falta.</translation>
    </message>
    <message numerus="yes">
        <source>%n items that are no logins are left out.</source>
        <translation>
            <numerusform>Se omite %n elemento que no es un acceso.</numerusform>
            <numerusform>Se omiten %n elementos que no son accesos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are left out. An archive of the safe holds them.</source>
        <translation>
            <numerusform>Se omite %n adjunto. La exportación de la caja fuerte lo incluye.</numerusform>
            <numerusform>Se omiten %n adjuntos. La exportación de la caja fuerte los incluye.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password of the safe.</source>
        <translation>Esta no es la contraseña de la caja fuerte.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo “%1”…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
</context>
<context>
    <name>ExtensionPage</name>
    <message>
        <source>You can install plugin later from application Settings window</source>
        <translation>Puede instalar la extensión más tarde desde los ajustes</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>%1, hidden</source>
        <translation>%1, oculto</translation>
    </message>
    <message>
        <source>View text under dots</source>
        <translation>Mostrar el texto oculto</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Abrir en el navegador</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Copy to clipboard: %1</source>
        <translation>Copiar al portapapeles: %1</translation>
    </message>
    <message>
        <source>Click to copy</source>
        <translation>Clic para copiar</translation>
    </message>
    <message>
        <source>Generate password</source>
        <translation>Generar contraseña</translation>
    </message>
    <message>
        <source>Change: %1</source>
        <translation>Cambiar: %1</translation>
    </message>
</context>
<context>
    <name>FieldRules</name>
    <message>
        <source>Required field is empty</source>
        <translation>El campo obligatorio está vacío</translation>
    </message>
    <message>
        <source>Url is invalid</source>
        <translation>La URL no es válida</translation>
    </message>
    <message>
        <source>Please use 4-digit value</source>
        <translation>Debe tener 4 dígitos</translation>
    </message>
    <message>
        <source>Please use 3-digit value</source>
        <translation>Debe tener 3 dígitos</translation>
    </message>
    <message>
        <source>Correct value is up to 26 characters in range A-Z including spaces</source>
        <translation>Como máximo 26 caracteres de la A a la Z, incluidos los espacios</translation>
    </message>
    <message>
        <source>Incorrect card number</source>
        <translation>Número de tarjeta incorrecto</translation>
    </message>
    <message>
        <source>“%1” is not a complete address</source>
        <translation>«%1» no es una dirección completa</translation>
    </message>
    <message>
        <source>“%1” is not a country code</source>
        <translation>«%1» no es un prefijo de país</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>“%1” is not a date</source>
        <translation>«%1» no es una fecha</translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message>
        <source>The same password as %1</source>
        <translation>La misma contraseña que %1</translation>
    </message>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation>
            <numerusform>La misma contraseña que %1 y %n más</numerusform>
            <numerusform>La misma contraseña que %1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Nothing changed since %1</source>
        <translation>Sin cambios desde el %1</translation>
    </message>
    <message>
        <source>The address begins with http: others can read along</source>
        <translation>La dirección empieza por http: otros pueden leer lo que se envía</translation>
    </message>
    <message>
        <source>Stop ignoring</source>
        <translation>Dejar de ignorar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Change it…</source>
        <translation>Cambiar…</translation>
    </message>
    <message>
        <source>Open the site&apos;s page for a new password</source>
        <translation>Abrir la página del sitio para cambiar la contraseña</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>Welcome</source>
        <translation>Hola</translation>
    </message>
    <message>
        <source>Which language do you want to use?</source>
        <translation>¿Qué idioma se va a usar?</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Crear una caja fuerte</translation>
    </message>
    <message>
        <source>It keeps your passwords. Only you know its password, and it cannot be recovered.</source>
        <translation>Guarda las contraseñas. Solo usted conoce la suya, y no se puede recuperar.</translation>
    </message>
    <message>
        <source>Fill forms in your browser</source>
        <translation>Rellenar formularios en el navegador</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Todo está listo</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>Al cerrar la ventana, el programa espera en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Bring your passwords over</source>
        <translation>Traiga sus contraseñas</translation>
    </message>
    <message>
        <source>From a browser or another program. You can also do it later, in the menu of the safe.</source>
        <translation>De un navegador o de otro programa. También puede hacerlo después, en el menú de la caja fuerte.</translation>
    </message>
    <message>
        <source>Install plugin very fast and simple</source>
        <translation>Instale la extensión de forma rápida y sencilla</translation>
    </message>
</context>
<context>
    <name>FormFillFlow</name>
    <message>
        <source>Can&apos;t login.</source>
        <translation>No se puede acceder.</translation>
    </message>
    <message>
        <source>Item %1 has wrong url: %2</source>
        <translation>La URL del elemento %1 no es correcta: %2</translation>
    </message>
    <message>
        <source>No browser is connected</source>
        <translation>No hay ningún navegador conectado</translation>
    </message>
    <message>
        <source>To fill this into a page, open your browser with the extension.</source>
        <translation>Para rellenar esto en una página, abra su navegador con la extensión.</translation>
    </message>
    <message>
        <source>Nothing to fill</source>
        <translation>Nada que rellenar</translation>
    </message>
    <message>
        <source>The page shows no empty fields for “%1”.</source>
        <translation>La página no muestra campos vacíos para “%1”.</translation>
    </message>
    <message>
        <source>This page is not encrypted</source>
        <translation>Esta página no está cifrada</translation>
    </message>
    <message>
        <source>A card is filled into encrypted pages (https) alone.</source>
        <translation>Una tarjeta solo se rellena en páginas cifradas (https).</translation>
    </message>
    <message>
        <source>An identity is filled into encrypted pages (https) alone.</source>
        <translation>Una identidad solo se rellena en páginas cifradas (https).</translation>
    </message>
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>No se pueden guardar los cambios.</translation>
    </message>
    <message>
        <source>These files could not be written; what they held before is still there. Check the free space and the permissions, then save again:
%1</source>
        <translation>No se han podido escribir estos archivos; su contenido anterior sigue ahí. Conviene comprobar el espacio libre y los permisos, y volver a guardar:
%1</translation>
    </message>
    <message>
        <source>Can&apos;t use the hotkey.</source>
        <translation>No se puede usar el atajo.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Choose another combination in the settings, or end that program and start this one anew.</source>
        <translation>Otro programa usa %1. Se puede elegir otra combinación en los ajustes, o cerrar ese programa y reiniciar este.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t back up.</source>
        <translation>No se puede hacer la copia de seguridad.</translation>
    </message>
    <message>
        <source>%1

Earlier backups are left as they are, in:
%2</source>
        <translation>%1

Las copias anteriores quedan como están, en:
%2</translation>
    </message>
</context>
<context>
    <name>GeneratorPanel</name>
    <message>
        <source>Generated password</source>
        <translation>Contraseña generada</translation>
    </message>
    <message>
        <source>Another password</source>
        <translation>Otra contraseña</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longitud:</translation>
    </message>
    <message>
        <source>Special chars:</source>
        <translation>Caracteres especiales:</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Colocar</translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation>No hay dónde colocarla.</translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation>Las contraseñas creadas desde que se abrió la caja fuerte; al bloquearla se borran</translation>
    </message>
    <message>
        <source>Passwords are remembered only while a safe is open</source>
        <translation>Las contraseñas solo se recuerdan mientras hay una caja fuerte abierta</translation>
    </message>
    <message>
        <source>Hidden password</source>
        <translation>Contraseña oculta</translation>
    </message>
    <message>
        <source>used</source>
        <translation>usada</translation>
    </message>
    <message>
        <source>Copy the password of %1</source>
        <translation>Copiar la contraseña de %1</translation>
    </message>
</context>
<context>
    <name>HealthDialog</name>
    <message>
        <source>Health</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Débiles</translation>
    </message>
    <message>
        <source>Reused</source>
        <translation>Reutilizadas</translation>
    </message>
    <message>
        <source>Older than 2 years</source>
        <translation>Más de 2&#xa0;años</translation>
    </message>
    <message>
        <source>Not on https</source>
        <translation>Sin https</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Por caducar</translation>
    </message>
    <message>
        <source>Looking at the items…</source>
        <translation>Analizando los elementos…</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mostrar más (%1)</translation>
    </message>
    <message>
        <source>Back to what is not ignored</source>
        <translation>Volver a los no ignorados</translation>
    </message>
    <message>
        <source>Ignored (%1)</source>
        <translation>Ignorados (%1)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message>
        <source>Not all items have been looked at yet.</source>
        <translation>Aún no se han analizado todos los elementos.</translation>
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
        <translation>Pulsar teclas</translation>
    </message>
    <message>
        <source>Press a combination of keys; Backspace clears it</source>
        <translation>Pulsar una combinación de teclas; Retroceso la borra</translation>
    </message>
</context>
<context>
    <name>HotkeyRules</name>
    <message>
        <source>Use it together with Ctrl, Alt or Meta</source>
        <translation>Se debe combinar con Ctrl, Alt o Meta</translation>
    </message>
    <message>
        <source>%1 is taken by: %2</source>
        <translation>%1 ya se usa para: %2</translation>
    </message>
    <message>
        <source>This key can not be used</source>
        <translation>Esta tecla no se puede usar</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>The file is not there or can&apos;t be read.</source>
        <translation>El archivo no está o no se puede leer.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Se está importando otra caja fuerte. Cuando termine, se puede volver a intentar.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>No se puede escribir la caja fuerte. Conviene comprobar el espacio libre y que hay permiso para escribir en la carpeta de las cajas fuertes.</translation>
    </message>
    <message>
        <source>The file would unpack to more than 4 GiB, or to a hundred times its size. No safe does that, so it was not imported.</source>
        <translation>Al descomprimirse, el archivo ocuparía más de 4&#xa0;GiB o cien veces su tamaño. Ninguna caja fuerte hace eso, así que no se ha importado.</translation>
    </message>
    <message>
        <source>This file is not an archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>Este archivo no es un archivo comprimido. Hay que elegir uno creado al exportar una caja fuerte o al hacer su copia de seguridad.</translation>
    </message>
    <message>
        <source>The file is damaged or was cut short. Copy it again from where it came from, or choose another backup.</source>
        <translation>El archivo está dañado o incompleto. Hay que copiarlo de nuevo desde su origen o elegir otra copia de seguridad.</translation>
    </message>
    <message>
        <source>The archive has a password of its own or is packed in a way that can&apos;t be read. Pack it again as a plain ZIP file.</source>
        <translation>El archivo comprimido tiene su propia contraseña o un formato que no se puede leer. Hay que volver a comprimirlo como un ZIP normal.</translation>
    </message>
    <message>
        <source>The archive holds a file that would be written outside the safe. Somebody may have tampered with it.</source>
        <translation>El archivo comprimido contiene un archivo que se escribiría fuera de la caja fuerte. Puede que alguien lo haya manipulado.</translation>
    </message>
    <message>
        <source>The archive holds two files of the same name. Somebody may have tampered with it.</source>
        <translation>El archivo comprimido contiene dos archivos con el mismo nombre. Puede que alguien lo haya manipulado.</translation>
    </message>
    <message>
        <source>There is no safe in this archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>No hay ninguna caja fuerte en este archivo comprimido. Hay que elegir uno creado al exportar una caja fuerte o al hacer su copia de seguridad.</translation>
    </message>
</context>
<context>
    <name>InstallSteps</name>
    <message>
        <source>Add the extension to %1</source>
        <translation>Añadir la extensión a %1</translation>
    </message>
    <message>
        <source>The extension did not come with this program. Install the program anew to get it.</source>
        <translation>La extensión no venía con este programa. Instale de nuevo el programa para obtenerla.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the address</source>
        <translation>Copiar la dirección</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message>
        <source>In %1 open the address %2</source>
        <translation>En %1 abra la dirección %2</translation>
    </message>
    <message>
        <source>Choose “Load Temporary Add-on…” and the file “manifest.json” in the folder of the extension</source>
        <translation>Elija “Cargar complemento temporal…” y el archivo “manifest.json” de la carpeta de la extensión</translation>
    </message>
    <message>
        <source>Come back here: the program asks whether Firefox may connect</source>
        <translation>Vuelva aquí: el programa pregunta si Firefox puede conectarse</translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation>Active el “Modo de desarrollador”</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Elija “Cargar descomprimida” y la carpeta de la extensión</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Carpeta de la extensión</translation>
    </message>
    <message>
        <source>Firefox forgets an extension that was added this way when it is closed.</source>
        <translation>Firefox olvida una extensión añadida así cuando se cierra.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Confirmation</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Do you want to delete the item forever?
It can not be restored.</source>
        <translation>¿Eliminar el elemento para siempre?
No se podrá restaurar.</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Eliminar para siempre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do you want to remove item?</source>
        <translation>¿Eliminar el elemento?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Do you want to delete all items in the trash forever?
They can not be restored.</source>
        <translation>¿Eliminar para siempre todos los elementos de la papelera?
No se podrán restaurar.</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation>
            <numerusform>¿Eliminar %n elemento para siempre?
No se podrá restaurar.</numerusform>
            <numerusform>¿Eliminar %n elementos para siempre?
No se podrán restaurar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation>
            <numerusform>¿Eliminar %n elemento?</numerusform>
            <numerusform>¿Eliminar %n elementos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Their attachment is deleted as well.</source>
        <translation>El adjunto también se elimina.</translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation>
            <numerusform>El adjunto también se elimina.</numerusform>
            <numerusform>Los %n adjuntos también se eliminan.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemChanges</name>
    <message>
        <source>Can&apos;t delete now.</source>
        <translation>Ahora no se puede eliminar.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed. Delete the items when that is done.</source>
        <translation>Se está cambiando la contraseña de la caja fuerte. Elimine los elementos cuando termine.</translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation>No se puede eliminar.</translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation>Los elementos siguen ahí. Compruebe que se puede escribir en la carpeta de la caja fuerte:
%1</translation>
    </message>
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>When logging in</source>
        <translation>Al acceder</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Número de tarjeta</translation>
    </message>
    <message>
        <source>Card type</source>
        <translation>Tipo de tarjeta</translation>
    </message>
    <message>
        <source>Card holder</source>
        <translation>Titular</translation>
    </message>
    <message>
        <source>Expires</source>
        <translation>Caducidad</translation>
    </message>
    <message>
        <source>Security code</source>
        <translation>Código de seguridad</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>Bank phone</source>
        <translation>Tel. del banco</translation>
    </message>
    <message>
        <source>Bank web site</source>
        <translation>Web del banco</translation>
    </message>
    <message>
        <source>Account type</source>
        <translation>Tipo de cuenta</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Titular de la cuenta</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Número de cuenta</translation>
    </message>
    <message>
        <source>Routing number</source>
        <translation>Número de ruta</translation>
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
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Birth date</source>
        <translation>Fecha de nacimiento</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Sexo</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Address line 1</source>
        <translation>Dirección (línea 1)</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Provincia</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Dirección (línea 2)</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>Business phone</source>
        <translation>Tel. del trabajo</translation>
    </message>
    <message>
        <source>Skype</source>
        <translation>Skype</translation>
    </message>
    <message>
        <source>Passport number</source>
        <translation>Número de pasaporte</translation>
    </message>
    <message>
        <source>Passport type</source>
        <translation>Tipo de pasaporte</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nombre completo</translation>
    </message>
    <message>
        <source>Birth place</source>
        <translation>Lugar de nacimiento</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nacionalidad</translation>
    </message>
    <message>
        <source>Authority</source>
        <translation>Autoridad</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Expedición</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Número de permiso</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Estatura</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Clave de licencia</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Rellenar y enviar</translation>
    </message>
    <message>
        <source>Only fill</source>
        <translation>Solo rellenar</translation>
    </message>
    <message>
        <source>Use application setting (fill and submit)</source>
        <translation>Según los ajustes (rellenar y enviar)</translation>
    </message>
    <message>
        <source>Use application setting (only fill)</source>
        <translation>Según los ajustes (solo rellenar)</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Masculino</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Femenino</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>Login</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Accesos</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Tarjeta de crédito</translation>
    </message>
    <message>
        <source>Credit cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Cuenta bancaria</translation>
    </message>
    <message>
        <source>Bank accounts</source>
        <translation>Banca</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identidad</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identidades</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Pasaporte</translation>
    </message>
    <message>
        <source>Passports</source>
        <translation>Pasaportes</translation>
    </message>
    <message>
        <source>Social security</source>
        <translation>Seguridad social</translation>
    </message>
    <message>
        <source>Driver licence</source>
        <translation>Permiso de conducir</translation>
    </message>
    <message>
        <source>Driver licences</source>
        <translation>Permisos</translation>
    </message>
    <message>
        <source>Secure note</source>
        <translation>Nota segura</translation>
    </message>
    <message>
        <source>Secure notes</source>
        <translation>Notas seguras</translation>
    </message>
    <message>
        <source>FTP account</source>
        <translation>Cuenta FTP</translation>
    </message>
    <message>
        <source>FTP accounts</source>
        <translation>Cuentas FTP</translation>
    </message>
    <message>
        <source>Software licence</source>
        <translation>Licencia de software</translation>
    </message>
    <message>
        <source>Software licences</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Adjunto</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Adjuntos</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Más usados</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>New login</source>
        <translation>Nuevo acceso</translation>
    </message>
    <message>
        <source>New credit card</source>
        <translation>Nueva tarjeta de crédito</translation>
    </message>
    <message>
        <source>New bank account</source>
        <translation>Nueva cuenta bancaria</translation>
    </message>
    <message>
        <source>New identity</source>
        <translation>Nueva identidad</translation>
    </message>
    <message>
        <source>New passport</source>
        <translation>Nuevo pasaporte</translation>
    </message>
    <message>
        <source>New social security number</source>
        <translation>Nuevo número de la seguridad social</translation>
    </message>
    <message>
        <source>New driver licence</source>
        <translation>Nuevo permiso de conducir</translation>
    </message>
    <message>
        <source>New secure note</source>
        <translation>Nueva nota segura</translation>
    </message>
    <message>
        <source>New FTP account</source>
        <translation>Nueva cuenta FTP</translation>
    </message>
    <message>
        <source>New software licence</source>
        <translation>Nueva licencia de software</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Nuevo adjunto</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Nuevo elemento</translation>
    </message>
    <message>
        <source>Copy password</source>
        <translation>Copiar contraseña</translation>
    </message>
    <message>
        <source>Copy card number</source>
        <translation>Copiar número de tarjeta</translation>
    </message>
    <message>
        <source>Copy account number</source>
        <translation>Copiar número de cuenta</translation>
    </message>
    <message>
        <source>Copy email address</source>
        <translation>Copiar correo</translation>
    </message>
    <message>
        <source>Copy passport number</source>
        <translation>Copiar número de pasaporte</translation>
    </message>
    <message>
        <source>Copy number</source>
        <translation>Copiar número</translation>
    </message>
    <message>
        <source>Copy licence number</source>
        <translation>Copiar número de permiso</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Copiar texto</translation>
    </message>
    <message>
        <source>Copy licence key</source>
        <translation>Copiar clave de licencia</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Por caducar</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Acceder</translation>
    </message>
    <message>
        <source>Fill in</source>
        <translation>Rellenar</translation>
    </message>
</context>
<context>
    <name>ItemListPane</name>
    <message>
        <source>Mark an item with the star, and it appears here.</source>
        <translation>Los elementos marcados con la estrella aparecen aquí.</translation>
    </message>
    <message>
        <source>Items appear here once you have logged in with them.</source>
        <translation>Los elementos aparecen aquí después de acceder con ellos.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation>Ctrl F</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>Buscar en %1</translation>
    </message>
    <message>
        <source>No items found</source>
        <translation>No se han encontrado elementos</translation>
    </message>
    <message>
        <source>Try fewer words, or press Esc to see all items.</source>
        <translation>Probar con menos palabras, o pulsar Esc para ver todos los elementos.</translation>
    </message>
    <message>
        <source>No items in this category</source>
        <translation>No hay elementos en esta categoría</translation>
    </message>
    <message>
        <source>What you remove stays here until you delete it forever.</source>
        <translation>Lo eliminado permanece aquí hasta que se elimina para siempre.</translation>
    </message>
    <message>
        <source>Your safe is empty</source>
        <translation>La caja fuerte está vacía</translation>
    </message>
    <message>
        <source>Keep your user names and passwords here.</source>
        <translation>Aquí se guardan los nombres de usuario y las contraseñas.</translation>
    </message>
    <message>
        <source>Add your first login</source>
        <translation>Añadir el primer acceso</translation>
    </message>
    <message>
        <source>Press Ctrl+N to add the first one.</source>
        <translation>Ctrl+N añade el primero.</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Nuevo elemento</translation>
    </message>
    <message>
        <source>New item (Ctrl+N)</source>
        <translation>Nuevo elemento (Ctrl+N)</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Traer contraseñas…</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Open address</source>
        <translation>Abrir dirección</translation>
    </message>
    <message>
        <source>Copy user name</source>
        <translation>Copiar nombre de usuario</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Delete forever…</source>
        <translation>Eliminar para siempre…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Log in (Ctrl+Return)</source>
        <translation>Acceder (Ctrl+Intro)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Modified %1 · created %2</source>
        <translation>Modificado %1 · creado %2</translation>
    </message>
    <message>
        <source>Used once</source>
        <translation>Usado una vez</translation>
    </message>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation>
            <numerusform>Usado %n vez</numerusform>
            <numerusform>Usado %n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit (F2)</source>
        <translation>Editar (F2)</translation>
    </message>
    <message>
        <source>Fill into the open page (Ctrl+Return)</source>
        <translation>Rellenar en la página abierta (Ctrl+Intro)</translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation>Ningún elemento seleccionado</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save (Ctrl+S)</source>
        <translation>Guardar (Ctrl+S)</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>No se pueden guardar los cambios.</translation>
    </message>
    <message>
        <source>There are empty required values.
Fill and try again.</source>
        <translation>Hay campos obligatorios vacíos.
Hay que rellenarlos y volver a intentarlo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The object has been modified</source>
        <translation>El elemento se ha modificado</translation>
    </message>
    <message>
        <source>There are empty required fields. What would you like to do?</source>
        <translation>Hay campos obligatorios vacíos. ¿Qué hacer?</translation>
    </message>
    <message>
        <source>You have not saved changes yet</source>
        <translation>Los cambios aún no se han guardado</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Eliminar para siempre</translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add one.</source>
        <translation>Elegir un elemento a la izquierda, o pulsar Ctrl+N para añadir uno.</translation>
    </message>
    <message>
        <source>There are values that are no date or no number.
Correct them and try again.</source>
        <translation>Hay valores que no son fechas o números.
Hay que corregirlos y volver a intentarlo.</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Nuevo adjunto</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>LineInput</name>
    <message>
        <source>Open in browser</source>
        <translation>Abrir en el navegador</translation>
    </message>
    <message>
        <source>Open in browser (Alt+Return)</source>
        <translation>Abrir en el navegador (Alt+Intro)</translation>
    </message>
    <message>
        <source>e.g. %1</source>
        <translation>p. ej. %1</translation>
    </message>
    <message>
        <source>MM / YYYY</source>
        <translation>MM / AAAA</translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation>Elegir una fecha</translation>
    </message>
    <message>
        <source>Choose a date (Alt+Down)</source>
        <translation>Elegir una fecha (Alt+Abajo)</translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation>
            <numerusform>Bloqueada tras %n minuto de inactividad</numerusform>
            <numerusform>Bloqueada tras %n minutos de inactividad</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoginSaving</name>
    <message>
        <source>%1 (former password, until %2)</source>
        <translation>%1 (contraseña anterior, hasta %2)</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Moved to trash</source>
        <translation>Movido a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation>
            <numerusform>%n elemento movido a la papelera</numerusform>
            <numerusform>%n elementos movidos a la papelera</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>“%1” was deleted on another computer.</source>
        <translation>“%1” se eliminó en otro equipo.</translation>
    </message>
    <message>
        <source>What you have typed is kept. Save it as a new item, or discard it.</source>
        <translation>Lo que ha escrito se conserva. Guárdelo como elemento nuevo o descártelo.</translation>
    </message>
</context>
<context>
    <name>MasterPasswordPage</name>
    <message>
        <source>Safe</source>
        <translation>Caja fuerte</translation>
    </message>
    <message>
        <source>Click to select safe</source>
        <translation>Clic para elegir una caja fuerte</translation>
    </message>
    <message>
        <source>Enter Password</source>
        <translation>Introducir contraseña</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Reading items</source>
        <translation>Leyendo elementos</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Crear nueva…</translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation>%1 (no disponible)</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hola</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>Hola de nuevo</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>Aún no hay ninguna caja fuerte
¿Crear una?</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Pista: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Unlocking: %1 of %2 items</source>
        <translation>Desbloqueando: %1 de %2 elementos</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Desbloqueando…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Restaurar una copia…</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Cajas fuertes…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Abrir de todos modos</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (buscando…)</translation>
    </message>
    <message>
        <source>Saving your last changes first…</source>
        <translation>Antes se guardan sus últimos cambios…</translation>
    </message>
    <message>
        <source>Locked. Saving your last changes…</source>
        <translation>Bloqueada. Se guardan sus últimos cambios…</translation>
    </message>
</context>
<context>
    <name>MonthPopup</name>
    <message>
        <source>Previous year</source>
        <translation>Año anterior</translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Año siguiente</translation>
    </message>
</context>
<context>
    <name>MoveInColumns</name>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The columns of “%1” are not known. Say what each one holds.</source>
        <translation>No se conocen las columnas de “%1”. Diga qué contiene cada una.</translation>
    </message>
    <message>
        <source>Keep it in the note</source>
        <translation>Guardarla en la nota</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>MoveInDialog</name>
    <message>
        <source>Choose the exported file</source>
        <translation>Elija el archivo exportado</translation>
    </message>
    <message>
        <source>Exports of passwords (%1)</source>
        <translation>Contraseñas exportadas (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Todos los archivos (%1)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Bring passwords over</source>
        <translation>Traer contraseñas</translation>
    </message>
    <message>
        <source>Drop the exported file here</source>
        <translation>Suelte aquí el archivo exportado</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copiado.</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Leyendo “%1”…</translation>
    </message>
    <message>
        <source>Added %1 of %2…</source>
        <translation>Añadidos %1 de %2…</translation>
    </message>
    <message>
        <source>What came in.txt</source>
        <translation>Lo que se ha traído.txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>The file cannot be written. Choose another folder.</source>
        <translation>No se puede escribir el archivo. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>¿Eliminar “%1”?</translation>
    </message>
    <message>
        <source>The file does not go to the bin: it is gone at once. Nobody can promise that nothing of it stays behind: SSDs, backups and folders that are synchronised may keep what was deleted for a while.</source>
        <translation>El archivo no va a la papelera: desaparece al momento. Nadie puede prometer que no quede nada de él: los SSD, las copias y las carpetas sincronizadas pueden conservar un tiempo lo eliminado.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The file “%1” is deleted. If you made other copies of it, delete them, too.</source>
        <translation>El archivo “%1” se ha eliminado. Si hizo otras copias de él, elimínelas también.</translation>
    </message>
    <message>
        <source>The file cannot be deleted. Close the program that has it open, then try again:
%1</source>
        <translation>No se puede eliminar el archivo. Cierre el programa que lo tiene abierto e inténtelo de nuevo:
%1</translation>
    </message>
</context>
<context>
    <name>MoveInEnd</name>
    <message>
        <source>What did not come in</source>
        <translation>Lo que no se ha traído</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Eliminar el archivo</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copiar informe</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Guardar informe…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Look at what did not come in, then delete the file.</source>
        <translation>El archivo “%1” aún contiene sus contraseñas, a la vista de cualquiera. Mire lo que no se ha traído y después elimine el archivo.</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Delete it now.</source>
        <translation>El archivo “%1” aún contiene sus contraseñas, a la vista de cualquiera. Elimínelo ahora.</translation>
    </message>
</context>
<context>
    <name>MoveInModel</name>
    <message>
        <source>chosen</source>
        <translation>elegido</translation>
    </message>
    <message>
        <source>not chosen</source>
        <translation>no elegido</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Será</translation>
    </message>
</context>
<context>
    <name>MoveInPage</name>
    <message>
        <source>Bring passwords over…</source>
        <translation>Traer contraseñas…</translation>
    </message>
    <message>
        <source>Chrome, Edge, Firefox, Safari, Bitwarden and KeePassXC write their passwords into a file, which this program reads. You see everything before it comes in, and how to make the file.</source>
        <translation>Chrome, Edge, Firefox, Safari, Bitwarden y KeePassXC escriben sus contraseñas en un archivo que este programa lee. Usted lo ve todo antes de que entre, y cómo hacer el archivo.</translation>
    </message>
    <message>
        <source>Open a safe first: the passwords are kept in it.</source>
        <translation>Abra primero una caja fuerte: en ella se guardan las contraseñas.</translation>
    </message>
</context>
<context>
    <name>MoveInPreview</name>
    <message>
        <source>Select all</source>
        <translation>Elegir todo</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>No elegir nada</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entrada</numerusform>
            <numerusform>%n entradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n logins will be added</source>
        <translation>
            <numerusform>Se añadirá %n acceso</numerusform>
            <numerusform>Se añadirán %n accesos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items will be added</source>
        <translation>
            <numerusform>Se añadirá %n elemento</numerusform>
            <numerusform>Se añadirán %n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n are already there</source>
        <translation>
            <numerusform>%n ya está</numerusform>
            <numerusform>%n ya están</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable</source>
        <translation>
            <numerusform>%n ilegible</numerusform>
            <numerusform>%n ilegibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n omitido</numerusform>
            <numerusform>%n omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n logins</source>
        <translation>
            <numerusform>Añadir %n acceso</numerusform>
            <numerusform>Añadir %n accesos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n items</source>
        <translation>
            <numerusform>Añadir %n elemento</numerusform>
            <numerusform>Añadir %n elementos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveInProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
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
        <translation>No se escribió en el disco</translation>
    </message>
    <message>
        <source>Not added before the safe was locked</source>
        <translation>No se añadió antes de bloquearse la caja fuerte</translation>
    </message>
    <message>
        <source>Not added before you cancelled</source>
        <translation>No se añadió antes de que usted cancelara</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>No elegido</translation>
    </message>
    <message>
        <source>Nothing came in</source>
        <translation>No se ha traído nada</translation>
    </message>
    <message numerus="yes">
        <source>%n logins came in</source>
        <translation>
            <numerusform>Se ha traído %n acceso</numerusform>
            <numerusform>Se han traído %n accesos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came in</source>
        <translation>
            <numerusform>Se ha traído %n elemento</numerusform>
            <numerusform>Se han traído %n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>You cancelled. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Usted canceló. Lo que se trajo antes está guardado. Para el resto, elija el archivo de nuevo: se reconoce lo que ya está.</translation>
    </message>
    <message>
        <source>The safe could not be written to. Check the free space and the permissions, then choose the file again: what is there is recognised.</source>
        <translation>No se pudo escribir en la caja fuerte. Compruebe el espacio libre y los permisos y elija el archivo de nuevo: se reconoce lo que ya está.</translation>
    </message>
    <message>
        <source>The safe was locked meanwhile. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Mientras tanto se bloqueó la caja fuerte. Lo que se trajo antes está guardado. Para el resto, elija el archivo de nuevo: se reconoce lo que ya está.</translation>
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
        <translation>Cómo hacer el archivo</translation>
    </message>
    <message>
        <source>Drop the exported file here, or choose it. Nothing is added before you have seen what will come in.</source>
        <translation>Suelte aquí el archivo exportado o elíjalo. No se añade nada antes de que haya visto lo que entrará.</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Elegir archivo…</translation>
    </message>
</context>
<context>
    <name>MoveInTable</name>
    <message>
        <source>What will come in</source>
        <translation>Lo que entrará</translation>
    </message>
</context>
<context>
    <name>MoveInTexts</name>
    <message>
        <source>The file is empty. Export the passwords again, and choose the new file.</source>
        <translation>El archivo está vacío. Exporte las contraseñas de nuevo y elija el archivo nuevo.</translation>
    </message>
    <message>
        <source>The file holds no text that could be read. Export the passwords as CSV or JSON, and choose that file.</source>
        <translation>El archivo no contiene texto que se pueda leer. Exporte las contraseñas como CSV o JSON y elija ese archivo.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a text. Export the passwords again, and choose the new file.</source>
        <translation>El archivo termina en medio de un texto. Exporte las contraseñas de nuevo y elija el archivo nuevo.</translation>
    </message>
    <message>
        <source>The file is encrypted. Export again as JSON or CSV without encryption, and delete that file afterwards.</source>
        <translation>El archivo está cifrado. Exporte de nuevo como JSON o CSV sin cifrar y elimine después ese archivo.</translation>
    </message>
    <message>
        <source>This is no export that the program knows. It reads the JSON files of Bitwarden and its own, and CSV files of browsers and other programs.</source>
        <translation>El programa no conoce esta exportación. Lee los archivos JSON de Bitwarden y los propios, y archivos CSV de navegadores y otros programas.</translation>
    </message>
    <message>
        <source>The names of the columns are not known. Say what each column holds.</source>
        <translation>No se conocen los nombres de las columnas. Diga qué contiene cada una.</translation>
    </message>
    <message>
        <source>Save the file where you find it again.</source>
        <translation>Guarde el archivo donde lo vuelva a encontrar.</translation>
    </message>
    <message>
        <source>Type %1 into the address bar.</source>
        <translation>Escriba %1 en la barra de direcciones.</translation>
    </message>
    <message>
        <source>Beside “Export passwords” press “Download file”.</source>
        <translation>Junto a “Exportar contraseñas” pulse “Descargar archivo”.</translation>
    </message>
    <message>
        <source>Press the three dots above the list and choose “Export passwords”.</source>
        <translation>Pulse los tres puntos sobre la lista y elija “Exportar contraseñas”.</translation>
    </message>
    <message>
        <source>Press the three dots in the corner and choose “Export passwords…”.</source>
        <translation>Pulse los tres puntos de la esquina y elija “Exportar contraseñas…”.</translation>
    </message>
    <message>
        <source>On the Mac open the program “Passwords”, or Safari on older systems.</source>
        <translation>En el Mac abra el programa “Contraseñas”, o Safari en sistemas antiguos.</translation>
    </message>
    <message>
        <source>In the menu “File” choose to export all passwords to a file.</source>
        <translation>En el menú “Archivo” elija exportar todas las contraseñas a un archivo.</translation>
    </message>
    <message>
        <source>Bring the file to this computer.</source>
        <translation>Traiga el archivo a este equipo.</translation>
    </message>
    <message>
        <source>Choose “Export vault”: under “Tools” in the web vault, in the menu “File” of the program.</source>
        <translation>Elija “Exportar caja fuerte”: en “Herramientas” de la caja web, en el menú “Archivo” del programa.</translation>
    </message>
    <message>
        <source>Choose “.json”, which holds cards and identities too, and no encryption.</source>
        <translation>Elija “.json”, que incluye también tarjetas e identidades, y sin cifrar.</translation>
    </message>
    <message>
        <source>Open the database.</source>
        <translation>Abra la base de datos.</translation>
    </message>
    <message>
        <source>In the menu “Database” choose “Export”, then “CSV file…”.</source>
        <translation>En el menú “Base de datos” elija “Exportar” y después “Archivo CSV…”.</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Otra caja fuerte</translation>
    </message>
    <message>
        <source>Open the other safe in this program.</source>
        <translation>Abra la otra caja fuerte en este programa.</translation>
    </message>
    <message>
        <source>In the menu of the safe choose “Export items…”, then JSON.</source>
        <translation>En el menú de la caja fuerte elija “Exportar elementos…” y después JSON.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Otro programa</translation>
    </message>
    <message>
        <source>Export the passwords as CSV, with the names of the columns in the first row.</source>
        <translation>Exporte las contraseñas como CSV, con los nombres de las columnas en la primera fila.</translation>
    </message>
    <message>
        <source>Choose the file here. You are asked what each column holds, if that is not known.</source>
        <translation>Elija el archivo aquí. Si no se conocen las columnas, se le pregunta qué contiene cada una.</translation>
    </message>
    <message>
        <source>recognised as an export of a browser</source>
        <translation>reconocido como exportación de un navegador</translation>
    </message>
    <message>
        <source>read by the columns that you chose</source>
        <translation>leído según las columnas que usted eligió</translation>
    </message>
    <message>
        <source>recognised as an export of %1</source>
        <translation>reconocido como exportación de %1</translation>
    </message>
    <message>
        <source>There are no rows below the names of the columns. Export the passwords again, and choose the new file.</source>
        <translation>No hay filas debajo de los nombres de las columnas. Exporte las contraseñas de nuevo y elija el archivo nuevo.</translation>
    </message>
    <message>
        <source>The file is no longer there. Choose it again.</source>
        <translation>El archivo ya no está. Elíjalo de nuevo.</translation>
    </message>
    <message>
        <source>This is no file. Choose the exported file itself.</source>
        <translation>Esto no es un archivo. Elija el archivo exportado mismo.</translation>
    </message>
    <message>
        <source>The file cannot be read. Close the program that has it open, or copy it to another folder.</source>
        <translation>No se puede leer el archivo. Cierre el programa que lo tiene abierto o cópielo a otra carpeta.</translation>
    </message>
    <message>
        <source>The file is larger than %1, which no export of passwords is. Check that it is the right one.</source>
        <translation>El archivo es mayor que %1, y ninguna exportación de contraseñas lo es. Compruebe que es el correcto.</translation>
    </message>
    <message>
        <source>Not a web address</source>
        <translation>No es una dirección web</translation>
    </message>
    <message>
        <source>Nothing in it</source>
        <translation>No contiene nada</translation>
    </message>
    <message>
        <source>Unknown kind</source>
        <translation>Tipo desconocido</translation>
    </message>
    <message>
        <source>Wrong number of columns</source>
        <translation>Número de columnas incorrecto</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Ya está</translation>
    </message>
    <message>
        <source>Other password</source>
        <translation>Otra contraseña</translation>
    </message>
    <message>
        <source>Other note</source>
        <translation>Otra nota</translation>
    </message>
    <message>
        <source>Without address</source>
        <translation>Sin dirección</translation>
    </message>
    <message>
        <source>It is in the safe, or further up in the file.</source>
        <translation>Está en la caja fuerte, o más arriba en el archivo.</translation>
    </message>
    <message>
        <source>There is a login of the same site and user name with another password. Both will be there.</source>
        <translation>Hay un acceso del mismo sitio y nombre de usuario con otra contraseña. Estarán los dos.</translation>
    </message>
    <message>
        <source>There is such an item with another note. Both will be there.</source>
        <translation>Hay un elemento así con otra nota. Estarán los dos.</translation>
    </message>
    <message>
        <source>Its address belongs to an app or a file, and goes to the note.</source>
        <translation>Su dirección es de una aplicación o de un archivo, y va a la nota.</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Entrada %1</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>(entry %1)</source>
        <translation>(entrada %1)</translation>
    </message>
    <message>
        <source>(row %1)</source>
        <translation>(fila %1)</translation>
    </message>
</context>
<context>
    <name>NarrowLayout</name>
    <message>
        <source>Back to the list (Esc)</source>
        <translation>Volver a la lista (Esc)</translation>
    </message>
</context>
<context>
    <name>NewItemMenu</name>
    <message>
        <source>New item</source>
        <translation>Nuevo elemento</translation>
    </message>
</context>
<context>
    <name>NewSafePage</name>
    <message>
        <source>The hint is shown to everyone who opens this window. Let it remind you of the password, and nobody else.</source>
        <translation>La pista la ve cualquiera que abra esta ventana. Que recuerde la contraseña a usted y a nadie más.</translation>
    </message>
    <message>
        <source>Your safe “%1” is open.</source>
        <translation>La caja fuerte «%1» está abierta.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Do you have a safe already?</source>
        <translation>¿Ya tiene una caja fuerte?</translation>
    </message>
    <message>
        <source>Open its folder…</source>
        <translation>Abrir su carpeta…</translation>
    </message>
    <message>
        <source>Import an archive…</source>
        <translation>Importar un archivo…</translation>
    </message>
    <message>
        <source>“%1” is there. Unlock it with its master password after these steps.</source>
        <translation>“%1” ya está. Ábrala con su contraseña maestra después de estos pasos.</translation>
    </message>
</context>
<context>
    <name>NewVersionDialog</name>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>New version</source>
        <translation>Versión nueva</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>La versión %1 ya está aquí</translation>
    </message>
    <message>
        <source>You have version %1. Your safes and settings stay as they are when you install the new one.</source>
        <translation>Tiene la versión %1. Sus cajas fuertes y ajustes no cambian al instalar la nueva.</translation>
    </message>
    <message>
        <source>The page is on %1 and opens in your browser.</source>
        <translation>La página está en %1 y se abre en su navegador.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Open the download page</source>
        <translation>Abrir la página de descarga</translation>
    </message>
</context>
<context>
    <name>NoticeBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
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
        <translation>Aceptar</translation>
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
        <translation>Versión %1

Ctrl+N añade un acceso, Ctrl+F busca, Ctrl+E edita, Ctrl+S guarda.
Ctrl+B copia el nombre de usuario, Ctrl+Mayús+C la contraseña.
Ctrl+Intro accede al sitio, Ctrl+L bloquea la caja fuerte, Ctrl+Q cierra el programa.

El tipo de letra es Inter (SIL Open Font License); los iconos son de Tabler Icons (MIT License).</translation>
    </message>
    <message>
        <source>Choose the folder of the safe</source>
        <translation>Elija la carpeta de la caja fuerte</translation>
    </message>
</context>
<context>
    <name>PasswordChangeDesk</name>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Writing “%1” anew under its new password. You can go on working meanwhile.</source>
        <translation>Escribiendo “%1” de nuevo con su nueva contraseña. Mientras tanto puede seguir trabajando.</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>View text under dots</source>
        <translation>Mostrar el texto oculto</translation>
    </message>
    <message>
        <source>View text under dots (Ctrl+R)</source>
        <translation>Mostrar el texto oculto (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>PasswordGeneratorDialog</name>
    <message>
        <source>Password Generator</source>
        <translation>Generador de contraseñas</translation>
    </message>
</context>
<context>
    <name>PasswordStrength</name>
    <message>
        <source>Strong</source>
        <translation>Excelente</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Débil</translation>
    </message>
    <message>
        <source>Terrible</source>
        <translation>Muy débil</translation>
    </message>
</context>
<context>
    <name>PasswordWeakness</name>
    <message>
        <source>a name</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a word from a list</source>
        <translation>una palabra de una lista</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>una fecha</translation>
    </message>
    <message>
        <source>keys side by side</source>
        <translation>teclas contiguas</translation>
    </message>
    <message>
        <source>a sequence</source>
        <translation>una secuencia</translation>
    </message>
    <message>
        <source>a repetition</source>
        <translation>una repetición</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>un dígito</translation>
    </message>
    <message>
        <source>digits</source>
        <translation>dígitos</translation>
    </message>
    <message>
        <source>a few characters</source>
        <translation>unos pocos caracteres</translation>
    </message>
    <message>
        <source>too few characters</source>
        <translation>muy pocos caracteres</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
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
        <translation>Prefijo</translation>
    </message>
    <message>
        <source>%1: country code</source>
        <translation>%1: prefijo del país</translation>
    </message>
</context>
<context>
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
        <translation>Versión no válida de la extensión %1: %2</translation>
    </message>
</context>
<context>
    <name>PluginsPage</name>
    <message>
        <source>No browser was found that the extension is made for: Chrome, Chromium or Firefox.</source>
        <translation>No se encontró ningún navegador para el que exista la extensión: Chrome, Chromium o Firefox.</translation>
    </message>
    <message>
        <source>Looking for browsers…</source>
        <translation>Buscando navegadores…</translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation>Hay un navegador conectado.</translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation>Todavía no hay ningún navegador conectado. Cuando lo haya, se verá aquí.</translation>
    </message>
    <message>
        <source>Opens your web links</source>
        <translation>Abre sus enlaces web</translation>
    </message>
    <message>
        <source>Installed %1</source>
        <translation>Instalada %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>%1, connected</source>
        <translation>%1, conectada</translation>
    </message>
    <message>
        <source>Install Plugin</source>
        <translation>Instalar extensión</translation>
    </message>
    <message>
        <source>Install Plugin: %1</source>
        <translation>Instalar extensión: %1</translation>
    </message>
</context>
<context>
    <name>ProgramShortcuts</name>
    <message>
        <source>copy</source>
        <translation>copiar</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>cortar</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>pegar</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>deshacer</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>rehacer</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>seleccionar todo</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>un comando de este programa</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
</context>
<context>
    <name>QuickAccessWindow</name>
    <message>
        <source>Quick access</source>
        <translation>Acceso rápido</translation>
    </message>
    <message>
        <source>No safe yet</source>
        <translation>Todavía no hay ninguna caja fuerte</translation>
    </message>
    <message>
        <source>Create one in the main window; what it keeps is found here.</source>
        <translation>Cree una en la ventana principal; lo que guarde se encuentra aquí.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Generador de contraseñas</translation>
    </message>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>No hay ningún navegador conectado con la extensión</translation>
    </message>
</context>
<context>
    <name>QuickBar</name>
    <message>
        <source>Logins</source>
        <translation>Accesos</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identidades</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Generar</translation>
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
        <translation>Para %1</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Más usados</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Identidades</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Accesos</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>QuickList</name>
    <message>
        <source>Search logins, cards, identities</source>
        <translation>Buscar accesos, tarjetas, identidades</translation>
    </message>
    <message>
        <source>The arrow keys choose an item, Enter fills it. Ctrl+C copies its password, Ctrl+B its user name.</source>
        <translation>Las flechas eligen un elemento, Intro lo rellena. Ctrl+C copia su contraseña, Ctrl+B su nombre de usuario.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>Try another word, or fewer letters.</source>
        <translation>Pruebe con otra palabra o con menos letras.</translation>
    </message>
    <message>
        <source>No logins yet</source>
        <translation>Todavía no hay accesos</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Todavía no hay tarjetas</translation>
    </message>
    <message>
        <source>No identities yet</source>
        <translation>Todavía no hay identidades</translation>
    </message>
    <message>
        <source>What you add in the main window is found here.</source>
        <translation>Lo que añada en la ventana principal se encuentra aquí.</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>adds an item</source>
        <translation>añade un elemento</translation>
    </message>
    <message>
        <source>searches</source>
        <translation>busca</translation>
    </message>
    <message>
        <source>opens the page of a login and fills it in</source>
        <translation>abre la página de un acceso y la rellena</translation>
    </message>
    <message>
        <source>locks the safe</source>
        <translation>bloquea la caja fuerte</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>hace %1&#xa0;días</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Restore from a backup</source>
        <translation>Restaurar una copia</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Otra carpeta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Leyendo las copias…</translation>
    </message>
    <message>
        <source>The folder is not there</source>
        <translation>La carpeta no está</translation>
    </message>
    <message>
        <source>Connect its drive, or choose the folder that your backups lie in.</source>
        <translation>Conecte su unidad o elija la carpeta donde están sus copias.</translation>
    </message>
    <message>
        <source>No backups here</source>
        <translation>Aquí no hay copias</translation>
    </message>
    <message>
        <source>Choose the folder that your backups lie in, such as one on another disk.</source>
        <translation>Elija la carpeta donde están sus copias, por ejemplo en otro disco.</translation>
    </message>
    <message>
        <source>It comes back as a new safe with the password of that time.</source>
        <translation>Vuelve como una nueva caja fuerte, con la contraseña de entonces.</translation>
    </message>
</context>
<context>
    <name>SafeDesk</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Open the folder of a safe</source>
        <translation>Abrir la carpeta de una caja fuerte</translation>
    </message>
    <message>
        <source>No safe there</source>
        <translation>Ahí no hay ninguna caja fuerte</translation>
    </message>
    <message>
        <source>There is no safe in this folder. The folder of a safe holds a file “safe.meta”:
%1</source>
        <translation>En esta carpeta no hay ninguna caja fuerte. La carpeta de una caja fuerte contiene un archivo “safe.meta”:
%1</translation>
    </message>
    <message>
        <source>Name of the safe</source>
        <translation>Nombre de la caja fuerte</translation>
    </message>
    <message>
        <source>Can&apos;t rename.</source>
        <translation>No se puede cambiar el nombre.</translation>
    </message>
    <message>
        <source>The safe keeps its name. Check the free space and that you may write to its folder:
%1</source>
        <translation>La caja fuerte conserva su nombre. Compruebe el espacio libre y que puede escribir en su carpeta:
%1</translation>
    </message>
    <message>
        <source>Where is “%1” now?</source>
        <translation>¿Dónde está “%1” ahora?</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Otra caja fuerte</translation>
    </message>
    <message>
        <source>This folder holds another safe than “%1”. Open it on its own with “Open the folder of a safe”, or choose another folder.</source>
        <translation>Esta carpeta contiene otra caja fuerte, no “%1”. Ábrala aparte con “Abrir la carpeta de una caja fuerte” o elija otra carpeta.</translation>
    </message>
    <message>
        <source>There is no safe in this folder:
%1</source>
        <translation>En esta carpeta no hay ninguna caja fuerte:
%1</translation>
    </message>
    <message>
        <source>Take “%1” off the list?</source>
        <translation>¿Quitar “%1” de la lista?</translation>
    </message>
    <message>
        <source>Its files stay where they are. “Open the folder of a safe” brings it back:
%1</source>
        <translation>Sus archivos quedan donde están. “Abrir la carpeta de una caja fuerte” la trae de vuelta:
%1</translation>
    </message>
    <message>
        <source>Its folder is not there now. If it comes back, “Open the folder of a safe” finds it:
%1</source>
        <translation>Su carpeta no está ahora. Si vuelve, “Abrir la carpeta de una caja fuerte” la encuentra:
%1</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete safe</source>
        <translation>Eliminar caja fuerte</translation>
    </message>
    <message>
        <source>Deleting “%1”…</source>
        <translation>Eliminando “%1”…</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is not in its folder any more.</source>
        <translation>No se eliminó nada: la caja fuerte ya no está en su carpeta.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is being archived, or its password is being changed. Try again when that is done.</source>
        <translation>No se eliminó nada: la caja fuerte se está archivando, o se está cambiando su contraseña. Inténtelo de nuevo cuando termine.</translation>
    </message>
    <message>
        <source>Nothing was deleted: another program has this safe open. Close it there and try again.</source>
        <translation>No se eliminó nada: otro programa tiene abierta esta caja fuerte. Ciérrela allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is as it was. Check that you may write to its folder and try again.</source>
        <translation>No se eliminó nada: la caja fuerte está como estaba. Compruebe que puede escribir en su carpeta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message>
        <source>“%1” is gone, but some of its files could not be removed. They are encrypted, and you can delete them:
%2</source>
        <translation>“%1” ya no está, pero algunos de sus archivos no se pudieron eliminar. Están cifrados, y puede eliminarlos usted:
%2</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is gone. %n other files were in its folder and are still there:
%2</source>
        <translation>
            <numerusform>“%1” ya no está. Había %n archivo más en su carpeta y sigue ahí:
%2</numerusform>
            <numerusform>“%1” ya no está. Había %n archivos más en su carpeta y siguen ahí:
%2</numerusform>
        </translation>
    </message>
    <message>
        <source>The safe keeps its name while its password is being changed. Try again when that is done.</source>
        <translation>La caja fuerte conserva su nombre mientras se cambia su contraseña. Inténtelo de nuevo cuando termine.</translation>
    </message>
</context>
<context>
    <name>SafeItemEditor</name>
    <message>
        <source>Editing “%1” · %2</source>
        <translation>Editando «%1» · %2</translation>
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
        <translation>Más campos: %1</translation>
    </message>
    <message>
        <source>More fields: %1…</source>
        <translation>Más campos: %1…</translation>
    </message>
</context>
<context>
    <name>SafeLines</name>
    <message>
        <source>Folder not found: it was on a drive that is not connected</source>
        <translation>Carpeta no encontrada: estaba en una unidad que no está conectada</translation>
    </message>
    <message>
        <source>Folder not found: it was moved, renamed or deleted</source>
        <translation>Carpeta no encontrada: se movió, cambió de nombre o se eliminó</translation>
    </message>
    <message>
        <source>There is no safe in its folder any more, or it can&apos;t be read</source>
        <translation>En su carpeta ya no hay ninguna caja fuerte, o no se puede leer</translation>
    </message>
    <message>
        <source>in the cloud folder</source>
        <translation>en la carpeta de la nube</translation>
    </message>
    <message>
        <source>a copy of “%1”</source>
        <translation>una copia de “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierta</translation>
    </message>
    <message>
        <source>Last opened %1</source>
        <translation>Última apertura: %1</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>Aún no abierta</translation>
    </message>
    <message>
        <source>synchronised %1</source>
        <translation>sincronizada %1</translation>
    </message>
    <message>
        <source>backed up %1</source>
        <translation>copiada %1</translation>
    </message>
    <message>
        <source>no backup yet</source>
        <translation>aún sin copia</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>buscando…</translation>
    </message>
</context>
<context>
    <name>SafeMenu</name>
    <message>
        <source>Create new...</source>
        <translation>Crear nueva…</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Cajas fuertes…</translation>
    </message>
    <message>
        <source>Synchronise now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Traer contraseñas…</translation>
    </message>
    <message>
        <source>Export items…</source>
        <translation>Exportar elementos…</translation>
    </message>
    <message>
        <source>Export safe…</source>
        <translation>Exportar caja fuerte…</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Cambiar contraseña…</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (no disponible)</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (buscando…)</translation>
    </message>
</context>
<context>
    <name>SafeRow</name>
    <message>
        <source>Locate…</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>More about “%1”</source>
        <translation>Más sobre “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message>
        <source>Remove from list…</source>
        <translation>Quitar de la lista…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Eliminar…</translation>
    </message>
</context>
<context>
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Cambiar de caja fuerte</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Caja fuerte: %1</translation>
    </message>
</context>
<context>
    <name>SafesDialog</name>
    <message>
        <source>Safes</source>
        <translation>Cajas fuertes</translation>
    </message>
    <message>
        <source>New safe</source>
        <translation>Nueva caja fuerte</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Make a safe from an archive or a backup</source>
        <translation>Hacer una caja fuerte de un archivo o de una copia</translation>
    </message>
    <message>
        <source>Open the folder of a safe…</source>
        <translation>Abrir la carpeta de una caja fuerte…</translation>
    </message>
    <message>
        <source>From cloud folder (%1)</source>
        <translation>De la carpeta de la nube (%1)</translation>
    </message>
    <message>
        <source>There is no safe yet. Make a new one, or import an archive.</source>
        <translation>Aún no hay ninguna caja fuerte. Cree una o importe un archivo.</translation>
    </message>
</context>
<context>
    <name>SaveLoginDialog</name>
    <message>
        <source>Save login</source>
        <translation>Guardar acceso</translation>
    </message>
    <message>
        <source>Never for this site</source>
        <translation>Nunca en este sitio</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Contraseña maestra</translation>
    </message>
    <message>
        <source>The login is in the safe now, but it could not be written to the disk. Check the free space and the permissions, then try again.</source>
        <translation>El acceso ya está en la caja fuerte, pero no se pudo escribir en el disco. Compruebe el espacio libre y los permisos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your safe is locked. Unlock it to save this login.</source>
        <translation>Su caja fuerte está bloqueada. Desbloquéela para guardar este acceso.</translation>
    </message>
    <message>
        <source>Your safe has this login already, so there is nothing to save.</source>
        <translation>Su caja fuerte ya tiene este acceso; no hay nada que guardar.</translation>
    </message>
    <message>
        <source>Already saved</source>
        <translation>Ya está guardado</translation>
    </message>
    <message>
        <source>Update this login?</source>
        <translation>¿Actualizar este acceso?</translation>
    </message>
    <message>
        <source>Save this login?</source>
        <translation>¿Guardar este acceso?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Desbloquear de todos modos</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Desbloqueando…</translation>
    </message>
    <message numerus="yes">
        <source>What you typed is kept for %n more seconds, then forgotten.</source>
        <translation>
            <numerusform>Lo que ha escrito se conserva %n segundo más y después se olvida.</numerusform>
            <numerusform>Lo que ha escrito se conserva %n segundos más y después se olvida.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no password to save. Type it in, or choose Not now.</source>
        <translation>No hay ninguna contraseña que guardar. Escríbala o elija “Ahora no”.</translation>
    </message>
    <message>
        <source>That login is no longer in the safe. Choose again where to save.</source>
        <translation>Ese acceso ya no está en la caja fuerte. Elija de nuevo dónde guardar.</translation>
    </message>
    <message>
        <source>The list of sites could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>No se pudo escribir la lista de sitios. Compruebe el espacio libre y los permisos de la carpeta de ajustes.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>You declined logins of this site before. If you do so now, it is not offered again until you lock the safe.</source>
        <translation>Ya rechazó accesos de este sitio. Si lo hace ahora, no se volverá a ofrecer hasta que bloquee la caja fuerte.</translation>
    </message>
</context>
<context>
    <name>SaveLoginForm</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>A new login</source>
        <translation>Un acceso nuevo</translation>
    </message>
    <message>
        <source>Until now: %1</source>
        <translation>Hasta ahora: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>favourite</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>favorito</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>papelera</translation>
    </message>
    <message>
        <source>weak</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>débil</translation>
    </message>
    <message>
        <source>expired</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>caducado</translation>
    </message>
    <message>
        <source>expiring</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>caduca</translation>
    </message>
    <message>
        <source>kind</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>tipo</translation>
    </message>
    <message>
        <source>is</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>estado</translation>
    </message>
    <message>
        <source>Finds items with all the words in title, user name, address or note.
kind:card shows one kind of item.
is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.</source>
        <comment>with the words that are translated as parts of a search</comment>
        <translation>Busca los elementos que contienen todas las palabras en el título, el nombre de usuario, la dirección o la nota.
tipo:tarjeta muestra un solo tipo de elementos.
estado:favorito, estado:débil, estado:caduca, estado:caducado y estado:papelera muestran los elementos según su estado.</translation>
    </message>
</context>
<context>
    <name>SecretInput</name>
    <message>
        <source>Generate password</source>
        <translation>Generar contraseña</translation>
    </message>
    <message>
        <source>Generate password (Ctrl+G)</source>
        <translation>Generar contraseña (Ctrl+G)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Copy to clipboard (Ctrl+C)</source>
        <translation>Copiar al portapapeles (Ctrl+C)</translation>
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
        <translation>No se pueden guardar los cambios.</translation>
    </message>
    <message>
        <source>Some changes could not be written; what was there before still is. Check that the folder of the safe can be written to and that there is free space, then try again:
%1</source>
        <translation>No se han podido escribir algunos cambios; lo que había antes sigue ahí. Conviene comprobar que se puede escribir en la carpeta de la caja fuerte y que hay espacio libre, y volver a intentarlo:
%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Lose changes</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Restaurar</translation>
    </message>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation>
            <numerusform>%n elemento seleccionado</numerusform>
            <numerusform>%n elementos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Eliminar para siempre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>ninguna elegida</translation>
    </message>
    <message>
        <source>%1: choose</source>
        <translation>%1: elegir</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Buscar en los ajustes</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>No setting matches the search.</source>
        <translation>Ningún ajuste coincide con la búsqueda.</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Navegador</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Everything in the program is shown in it, at once.</source>
        <translation>Todo el programa se muestra en él al instante.</translation>
    </message>
    <message>
        <source>The language was not changed.</source>
        <translation>No se ha cambiado el idioma.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>new version download</source>
        <translation>nueva versión version descarga actualizar</translation>
    </message>
    <message>
        <source>Time until it locks</source>
        <translation>Tiempo hasta el bloqueo</translation>
    </message>
    <message>
        <source>How long neither keyboard nor mouse are used, in any program.</source>
        <translation>Tiempo sin usar el teclado ni el ratón, en ningún programa.</translation>
    </message>
    <message>
        <source>auto-lock idle minutes away</source>
        <translation>bloqueo automático automatico inactividad minutos ausencia</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Lock after inactivity</source>
        <translation>Bloquear tras inactividad</translation>
    </message>
    <message>
        <source>The safe locks when you leave the computer alone.</source>
        <translation>La caja fuerte se bloquea cuando nadie usa el equipo.</translation>
    </message>
    <message>
        <source>auto-lock idle away</source>
        <translation>bloqueo automático automatico inactividad ausencia</translation>
    </message>
    <message>
        <source>Lock when the screen saver starts</source>
        <translation>Bloquear al iniciarse el salvapantallas</translation>
    </message>
    <message>
        <source>The safe locks together with the screen.</source>
        <translation>La caja fuerte se bloquea junto con la pantalla.</translation>
    </message>
    <message>
        <source>auto-lock</source>
        <translation>bloqueo automático automatico protector de pantalla</translation>
    </message>
    <message>
        <source>Clear copied values after 60 seconds</source>
        <translation>Borrar los valores copiados tras 60&#xa0;segundos</translation>
    </message>
    <message>
        <source>What you copied from the safe does not stay on the clipboard, where other programs can read it.</source>
        <translation>Lo que se copia de la caja fuerte no se queda en el portapapeles, donde otros programas pueden leerlo.</translation>
    </message>
    <message>
        <source>clipboard copy password wipe</source>
        <translation>portapapeles copiar contraseña borrar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Rellenar y enviar</translation>
    </message>
    <message>
        <source>Log in from the main window</source>
        <translation>Acceder desde la ventana principal</translation>
    </message>
    <message>
        <source>Whether the page&apos;s form is only filled or also sent. A login can have its own way.</source>
        <translation>Si el formulario de la página solo se rellena o también se envía. Cada acceso puede tener su propia opción.</translation>
    </message>
    <message>
        <source>automatic form enter</source>
        <translation>automático automatico formulario rellenar intro</translation>
    </message>
    <message>
        <source>Log in from the quick-access window</source>
        <translation>Acceder desde la ventana de acceso rápido</translation>
    </message>
    <message>
        <source>The same for logins that you choose while you are in the browser.</source>
        <translation>Lo mismo para los accesos que se eligen desde el navegador.</translation>
    </message>
    <message>
        <source>automatic form enter extension plugin</source>
        <translation>automático automatico formulario rellenar intro extensión extension complemento</translation>
    </message>
    <message>
        <source>Open addresses in</source>
        <translation>Abrir las direcciones en</translation>
    </message>
    <message>
        <source>Where the browser shows the page of a login that is not open yet.</source>
        <translation>Dónde muestra el navegador la página de un acceso que aún no está abierta.</translation>
    </message>
    <message>
        <source>tab window extension plugin</source>
        <translation>pestaña ventana extensión extension complemento</translation>
    </message>
    <message>
        <source>The current tab</source>
        <translation>La pestaña actual</translation>
    </message>
    <message>
        <source>A new tab</source>
        <translation>Una pestaña nueva</translation>
    </message>
    <message>
        <source>A new window</source>
        <translation>Una ventana nueva</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Hacer copia</translation>
    </message>
    <message>
        <source>A safe that has not changed since is not copied again.</source>
        <translation>Una caja fuerte sin cambios desde entonces no se copia otra vez.</translation>
    </message>
    <message>
        <source>interval how often</source>
        <translation>intervalo frecuencia</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Folder for backups</source>
        <translation>Carpeta de las copias</translation>
    </message>
    <message>
        <source>Best on another disk. The copies are encrypted like the safe.</source>
        <translation>Mejor en otro disco. Las copias van cifradas como la caja fuerte.</translation>
    </message>
    <message>
        <source>path directory archive</source>
        <translation>ruta directorio ubicación ubicacion copia de seguridad</translation>
    </message>
    <message>
        <source>Copies to keep</source>
        <translation>Copias que conservar</translation>
    </message>
    <message>
        <source>Of each safe; when there are more, the oldest are deleted.</source>
        <translation>De cada caja fuerte; cuando hay más, se eliminan las más antiguas.</translation>
    </message>
    <message>
        <source>number archives</source>
        <translation>número numero cantidad</translation>
    </message>
    <message>
        <source>This folder cannot be written to: %1</source>
        <translation>No se puede escribir en esta carpeta: %1</translation>
    </message>
    <message>
        <source>Back up automatically</source>
        <translation>Copia de seguridad automática</translation>
    </message>
    <message>
        <source>Copies of all safes that open with their master password.</source>
        <translation>Copias de todas las cajas fuertes; se abren con su contraseña maestra.</translation>
    </message>
    <message>
        <source>archive copy</source>
        <translation>copia de seguridad respaldo</translation>
    </message>
    <message>
        <source>Lock Safe hotkey:</source>
        <translation>Bloquear la caja fuerte:</translation>
    </message>
    <message>
        <source>shortcut key combination</source>
        <translation>atajo tecla combinación combinacion teclado</translation>
    </message>
    <message>
        <source>Browser plugin hotkey:</source>
        <translation>Atajo de la extensión:</translation>
    </message>
    <message>
        <source>Opens the quick-access window for the page in your browser.</source>
        <translation>Abre la ventana de acceso rápido para la página del navegador.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Light or dark, always or as the system has it.</source>
        <translation>Claros u oscuros, siempre o como el sistema.</translation>
    </message>
    <message>
        <source>theme mode night appearance</source>
        <translation>tema modo noche nocturno apariencia</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claros</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuros</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Of all texts, with the controls around them.</source>
        <translation>De todos los textos y de los controles que los rodean.</translation>
    </message>
    <message>
        <source>font large small zoom scale</source>
        <translation>letra fuente grande pequeña zoom escala</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>The text size was not changed.</source>
        <translation>No se ha cambiado el tamaño del texto.</translation>
    </message>
    <message>
        <source>No animations</source>
        <translation>Sin animaciones</translation>
    </message>
    <message>
        <source>When it is off, the system&apos;s setting for animations holds.</source>
        <translation>Si está desactivado, se aplica el ajuste del sistema para las animaciones.</translation>
    </message>
    <message>
        <source>reduced motion effects</source>
        <translation>movimiento reducido efectos</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, but they could not be written to %1</source>
        <translation>Los ajustes valen hasta que se cierre el programa, pero no se han podido escribir en %1</translation>
    </message>
    <message>
        <source>Locks the safe from any program; on Wayland, from this program&apos;s windows.</source>
        <translation>Bloquea la caja fuerte desde cualquier programa; en Wayland, desde las ventanas de este.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Carpeta de la nube</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Contraseña maestra</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>La que abre esta caja fuerte.</translation>
    </message>
    <message>
        <source>change hint</source>
        <translation>cambiar pista</translation>
    </message>
    <message>
        <source>Last backup</source>
        <translation>Última copia</translation>
    </message>
    <message>
        <source>When each safe was backed up, and when that is done next.</source>
        <translation>Cuándo se copió cada caja fuerte y cuándo toca la próxima vez.</translation>
    </message>
    <message>
        <source>back up now restore archive</source>
        <translation>copiar ahora restaurar archivo</translation>
    </message>
    <message>
        <source>Keeps safes the same on several computers.</source>
        <translation>Mantiene las cajas fuertes iguales en varios equipos.</translation>
    </message>
    <message>
        <source>synchronise sync mirror share provider account computers</source>
        <translation>sincronizar copia espejo compartir proveedor cuenta equipos</translation>
    </message>
    <message>
        <source>Browsers and extensions</source>
        <translation>Navegadores y extensiones</translation>
    </message>
    <message>
        <source>In which browsers the extension is, and which may connect.</source>
        <translation>En qué navegadores está la extensión y cuáles pueden conectarse.</translation>
    </message>
    <message>
        <source>plugin install approve connect chrome chromium firefox</source>
        <translation>plugin extensión instalar permitir conectar chrome chromium firefox</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Sitios sin ofrecimiento</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>No se ofrece guardar los accesos que escriba en ellos.</translation>
    </message>
    <message>
        <source>never save login ask again</source>
        <translation>nunca guardar acceso volver a preguntar</translation>
    </message>
    <message>
        <source>Show the icons of web sites</source>
        <translation>Mostrar los iconos de los sitios web</translation>
    </message>
    <message>
        <source>They are fetched from the sites of your logins and kept in the safe.</source>
        <translation>Se obtienen de los sitios de sus accesos y se guardan en la caja fuerte.</translation>
    </message>
    <message>
        <source>favicon logo picture download</source>
        <translation>favicon logotipo icono imagen descargar</translation>
    </message>
    <message>
        <source>The setting holds until the program ends, but it could not be stored.</source>
        <translation>El ajuste vale hasta que termine el programa, pero no se pudo guardar.</translation>
    </message>
    <message>
        <source>Asks once a day whether there is a newer version. Sent are your version and a number made for this computer, nothing else.</source>
        <translation>Pregunta una vez al día si hay una versión más nueva. Se envían su versión y un número creado para este equipo, nada más.</translation>
    </message>
    <message>
        <source>Newest version</source>
        <translation>Versión más nueva</translation>
    </message>
    <message>
        <source>Which version there is, and when was last looked for it.</source>
        <translation>Qué versión hay y cuándo se buscó por última vez.</translation>
    </message>
    <message>
        <source>update check download</source>
        <translation>actualización comprobar descarga</translation>
    </message>
    <message>
        <source>Your desktop does not tell when you are away. The safe locks with the screen and when the computer sleeps.</source>
        <translation>Su escritorio no indica cuándo se ausenta. La caja fuerte se bloquea con la pantalla y cuando el equipo se suspende.</translation>
    </message>
    <message>
        <source>Hide the windows from screenshots</source>
        <translation>Ocultar las ventanas en las capturas de pantalla</translation>
    </message>
    <message>
        <source>What is in the safe appears in no recording and on no shared screen.</source>
        <translation>El contenido de la caja fuerte no aparece en ninguna grabación ni en ninguna pantalla compartida.</translation>
    </message>
    <message>
        <source>screen capture sharing meeting</source>
        <translation>captura pantalla compartir reunión grabación</translation>
    </message>
</context>
<context>
    <name>SetupWizard</name>
    <message>
        <source>Set up Glaceron Password Manager</source>
        <translation>Configurar Glaceron Password Manager</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
<context>
    <name>ShortcutTable</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Into the list and back</source>
        <translation>A la lista y de vuelta</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Añadir un elemento</translation>
    </message>
    <message>
        <source>Edit the item</source>
        <translation>Editar el elemento</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Leave the editor, or clear the search</source>
        <translation>Salir del editor o borrar la búsqueda</translation>
    </message>
    <message>
        <source>Copy the user name</source>
        <translation>Copiar el nombre de usuario</translation>
    </message>
    <message>
        <source>Copy the password, or the number of a card or document</source>
        <translation>Copiar la contraseña, o el número de una tarjeta o documento</translation>
    </message>
    <message>
        <source>Attach the copied file to the item</source>
        <translation>Adjuntar el archivo copiado al elemento</translation>
    </message>
    <message>
        <source>Select all items</source>
        <translation>Seleccionar todos los elementos</translation>
    </message>
    <message>
        <source>Select more items</source>
        <translation>Seleccionar más elementos</translation>
    </message>
    <message>
        <source>Menu of the items</source>
        <translation>Menú de los elementos</translation>
    </message>
    <message>
        <source>Remove the items</source>
        <translation>Eliminar los elementos</translation>
    </message>
    <message>
        <source>Take the last removal back</source>
        <translation>Deshacer la última eliminación</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Lock the safe</source>
        <translation>Bloquear la caja fuerte</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Cerrar el programa</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Mostrar esta lista</translation>
    </message>
    <message>
        <source>Log in, or fill in a card or identity</source>
        <translation>Acceder, o rellenar una tarjeta o identidad</translation>
    </message>
    <message>
        <source>Log in or fill in, from the list or the search</source>
        <translation>Acceder o rellenar, desde la lista o la búsqueda</translation>
    </message>
    <message>
        <source>Open the item, in a narrow window</source>
        <translation>Abrir el elemento, en una ventana estrecha</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> o </translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
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
        <translation>No hay ningún navegador conectado con la extensión</translation>
    </message>
    <message>
        <source>What it was made for is no longer edited</source>
        <translation>El elemento para el que se generó ya no se está editando</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Cambiar contraseña…</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Contraseña maestra</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>La que abre esta caja fuerte.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Password generator</source>
        <translation>Generador de contraseñas</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>%1 · unlocked</source>
        <translation>%1 · abierta</translation>
    </message>
    <message>
        <source>Finish setting up</source>
        <translation>Terminar la configuración</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>less than 1 KB</source>
        <translation>menos de 1 KB</translation>
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
        <translation>%1&#xa0;s</translation>
    </message>
</context>
<context>
    <name>SortButton</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Más usados</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message>
        <source>Last changed</source>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Más recientes</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Orden: %1</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>TrashBar</name>
    <message>
        <source>Restore all</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vaciar todo</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open Main Window</source>
        <translation>Abrir la ventana</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Generador de contraseñas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Quick Access</source>
        <translation>Acceso rápido</translation>
    </message>
</context>
<context>
    <name>UnlockLogic</name>
    <message>
        <source>This safe is not available. Check that its folder is there:
%1</source>
        <translation>Esta caja fuerte no está disponible. Conviene comprobar que su carpeta está ahí:
%1</translation>
    </message>
    <message>
        <source>No any safe is selected</source>
        <translation>No hay ninguna caja fuerte seleccionada</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>¡Contraseña incorrecta! Intentar de nuevo</translation>
    </message>
    <message>
        <source>The safe could not be read. Check that its folder is there and that you may read it, then try again.</source>
        <translation>No se ha podido leer la caja fuerte. Conviene comprobar que su carpeta está ahí y que hay permiso para leerla, y volver a intentarlo.</translation>
    </message>
    <message>
        <source>Unlock your safe to go on</source>
        <translation>Desbloquear la caja fuerte para continuar</translation>
    </message>
    <message>
        <source>This safe is on a drive that is not connected. Connect it, then choose the safe again:
%1</source>
        <translation>Esta caja fuerte está en una unidad que no está conectada. Conéctela y elija la caja fuerte de nuevo:
%1</translation>
    </message>
    <message>
        <source>Another program on this computer has this safe open. What both change at the same time can get lost, so close it there first.</source>
        <translation>Otro programa de este equipo tiene abierta esta caja fuerte. Lo que ambos cambien a la vez puede perderse; ciérrela allí primero.</translation>
    </message>
    <message>
        <source>This safe is open on the computer “%1”, or was when that computer stopped. What both change at the same time can get lost, so close it there first.</source>
        <translation>Esta caja fuerte está abierta en el equipo “%1”, o lo estaba cuando ese equipo se detuvo. Lo que ambos cambien a la vez puede perderse; ciérrela allí primero.</translation>
    </message>
    <message>
        <source>This is the password from before it was changed. Use the new one.</source>
        <translation>Esta es la contraseña de antes del cambio. Use la nueva.</translation>
    </message>
    <message>
        <source>This is the password from before a change that was interrupted.</source>
        <translation>Esta es la contraseña de antes de un cambio que se interrumpió.</translation>
    </message>
    <message>
        <source>This password was set on another computer. Unlock with the former one; then you are asked for this one.</source>
        <translation>Esta contraseña se puso en otro equipo. Abra con la anterior; después se le pide esta.</translation>
    </message>
    <message>
        <source>Looking for this safe. Its drive does not answer yet:
%1</source>
        <translation>Buscando esta caja fuerte. Su unidad aún no responde:
%1</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Show…</source>
        <translation>Mostrar…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Comprobar ahora</translation>
    </message>
    <message>
        <source>Show the new version</source>
        <translation>Mostrar la versión nueva</translation>
    </message>
    <message>
        <source>Check for a newer version now</source>
        <translation>Buscar ahora una versión más nueva</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>La versión %1 ya está aquí</translation>
    </message>
    <message>
        <source>You have the newest version, %1</source>
        <translation>Tiene la versión más nueva, %1</translation>
    </message>
    <message>
        <source>You have version %1</source>
        <translation>Tiene la versión %1</translation>
    </message>
    <message>
        <source>This program was built without an address to ask for newer versions, so it never looks for them.</source>
        <translation>Este programa se creó sin una dirección donde preguntar por versiones más nuevas, así que nunca las busca.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>There was no answer that could be used. Check the connection to the internet and try again.</source>
        <translation>No hubo una respuesta válida. Compruebe la conexión a internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Última comprobación: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Aún sin comprobar</translation>
    </message>
</context>
<context>
    <name>WindowMover</name>
    <message>
        <source>Minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
