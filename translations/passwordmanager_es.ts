<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
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
        <source>less than 1 KB</source>
        <translation>menos de 1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
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
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Sin indicar</translation>
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
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
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
    <name>ExtensionPage</name>
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
        <source>In Chromium, Chrome or Edge open the address %1</source>
        <translation>En Chromium, Chrome o Edge, abrir la dirección %1</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Elegir «Cargar descomprimida» y la carpeta de la extensión</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Carpeta de la extensión</translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation>Hay un navegador conectado.</translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation>Aún no hay ningún navegador conectado. Aquí se verá cuando lo haya.</translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation>Activar «Modo de desarrollador»</translation>
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
        <source>The extension fills your logins into the pages they belong to.</source>
        <translation>La extensión rellena los accesos en las páginas a las que pertenecen.</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Todo está listo</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>Al cerrar la ventana, el programa espera en la bandeja del sistema.</translation>
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
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation>No se puede eliminar.</translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation>Los elementos siguen ahí. Conviene comprobar que se puede escribir en la carpeta de la caja fuerte:
%1</translation>
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
        <source>Restore all</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vaciar todo</translation>
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
        <source>Log in</source>
        <translation>Acceder</translation>
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
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Acceder</translation>
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
        <translation>Caract. especiales:</translation>
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
        <translation>Insertar</translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation>No hay dónde insertarla.</translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation>Contraseñas generadas desde que se abrió la caja fuerte; al bloquearla se borran</translation>
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
        <translation>Copiar la contraseña (%1)</translation>
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
        <source>search</source>
        <translation>buscar</translation>
    </message>
    <message>
        <source>new item</source>
        <translation>nuevo elemento</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>editar</translation>
    </message>
    <message>
        <source>save</source>
        <translation>guardar</translation>
    </message>
    <message>
        <source>log in</source>
        <translation>acceder</translation>
    </message>
    <message>
        <source>copy the user name</source>
        <translation>copiar el nombre de usuario</translation>
    </message>
    <message>
        <source>copy the password</source>
        <translation>copiar la contraseña</translation>
    </message>
    <message>
        <source>password generator</source>
        <translation>generador de contraseñas</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>bloquear</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>salir</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>un comando de este programa</translation>
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
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Cambiar de caja fuerte</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Caja fuerte: %1</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (no disponible)</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Crear nueva…</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
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
        <source>Looks from time to time whether there is a newer version.</source>
        <translation>Comprueba de vez en cuando si hay una versión más reciente.</translation>
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
        <source>Log in</source>
        <translation>Acceder</translation>
    </message>
    <message>
        <source>Log in, from the list or the search</source>
        <translation>Acceder, desde la lista o la búsqueda</translation>
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
