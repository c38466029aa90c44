<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_GB">
<context>
    <name>ApprovalDesk</name>
    <message>
        <source>Let Firefox connect?</source>
        <translation>Разрешить Firefox подключиться?</translation>
    </message>
    <message>
        <source>An extension in Firefox wants to connect to this program. If you allow it, it can fill your logins into pages and offer to save new ones.

Allow it if you have just added the extension to Firefox, or to another profile of it. If you do not know where this comes from, choose “Don&apos;t allow”.

You can change your mind in the settings, on the page “Browser”.</source>
        <translation>Расширение в Firefox хочет подключиться к этой программе. Если Вы разрешите, оно сможет заполнять страницы Вашими логинами и предлагать сохранить новые.

Разрешите, если Вы только что добавили расширение в Firefox или в другой его профиль. Если не знаете, откуда этот запрос, выберите «Не разрешать».

Передумать можно в настройках, на странице «Браузер».</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>Don&apos;t allow</source>
        <translation>Не разрешать</translation>
    </message>
</context>
<context>
    <name>ApprovalsPanel</name>
    <message>
        <source>None yet. When one wants to connect, you are asked.</source>
        <translation>Пока нет. Когда расширение захочет подключиться, программа Вас спросит.</translation>
    </message>
    <message>
        <source>Each Firefox profile gives the extension an id of its own, so you say which ones may connect.</source>
        <translation>Каждый профиль Firefox даёт расширению свой идентификатор, поэтому Вы сами решаете, каким можно подключаться.</translation>
    </message>
    <message>
        <source>Extensions in Firefox</source>
        <translation>Расширения в Firefox</translation>
    </message>
    <message>
        <source>%1: may connect</source>
        <translation>%1: подключение разрешено</translation>
    </message>
    <message>
        <source>%1: may not connect</source>
        <translation>%1: подключение запрещено</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Убрать %1</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Разрешить %1</translation>
    </message>
</context>
<context>
    <name>ArchiveDesk</name>
    <message>
        <source>Export safe</source>
        <translation>Экспорт сейфа</translation>
    </message>
    <message>
        <source>GPM file (*.gpm)</source>
        <translation>Файл GPM (*.gpm)</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>Экспорт «%1»…</translation>
    </message>
    <message>
        <source>“%1” was not exported. %2</source>
        <translation>Сейф «%1» не экспортирован. %2</translation>
    </message>
    <message>
        <source>“%1” is exported. Everything in the file is encrypted; it opens with the master password of today:
%2</source>
        <translation>Сейф «%1» экспортирован. В файле всё зашифровано; он открывается нынешним мастер-паролем:
%2</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read and are not in it.</source>
        <translation>
            <numerusform>В архив не вошёл %n нечитаемый файл.</numerusform>
            <numerusform>В архив не вошли %n нечитаемых файла.</numerusform>
            <numerusform>В архив не вошли %n нечитаемых файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Показать папку</translation>
    </message>
    <message>
        <source>Open GPM file on your computer</source>
        <translation>Откройте файл GPM на компьютере</translation>
    </message>
    <message>
        <source>Import safe</source>
        <translation>Импорт сейфа</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>Импорт «%1»…</translation>
    </message>
    <message>
        <source>Import from &quot;%1&quot; failed!</source>
        <translation>Не удалось импортировать «%1»!</translation>
    </message>
    <message>
        <source>“%1” is now in the list of your safes. It opens with the master password that it had when the file was made.</source>
        <translation>Сейф «%1» теперь в списке Ваших сейфов. Он открывается мастер-паролем, который был у него при создании файла.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Открыть его</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Восстановление из копии</translation>
    </message>
    <message>
        <source>Restoring “%1”…</source>
        <translation>Восстановление «%1»…</translation>
    </message>
</context>
<context>
    <name>AttachmentActions</name>
    <message>
        <source>Maximum attachment file size is %1 megabytes</source>
        <translation>Вложение может занимать не более %1 МБ</translation>
    </message>
    <message>
        <source>This is no file, or it can not be read</source>
        <translation>Это не файл, или его нельзя прочитать</translation>
    </message>
    <message>
        <source>The folder of the safe is full or can not be written to</source>
        <translation>Папка сейфа заполнена или недоступна для записи</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Выберите файл</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Remove the copy now</source>
        <translation>Удалить копию сейчас</translation>
    </message>
    <message>
        <source>Its file is missing in the safe</source>
        <translation>Файл вложения отсутствует в сейфе</translation>
    </message>
    <message>
        <source>%1 · encrypted</source>
        <translation>%1 · зашифровано</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t attach.</source>
        <translation>Не удалось вложить.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Can&apos;t read the attachment.</source>
        <translation>Не удалось прочитать вложение.</translation>
    </message>
    <message>
        <source>The file of %1 in the safe is missing or damaged. A backup may hold it undamaged.</source>
        <translation>Файл «%1» в сейфе отсутствует или повреждён. Возможно, он уцелел в резервной копии.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>Can&apos;t save the attachment.</source>
        <translation>Не удалось сохранить вложение.</translation>
    </message>
    <message>
        <source>%1 could not be written. Check the free space and the permissions there, or choose another place.</source>
        <translation>Не удалось записать %1. Проверьте свободное место и права доступа или выберите другое место.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Не открыто</translation>
    </message>
    <message>
        <source>%1 is a program, or can run one. It can be saved and looked at there.</source>
        <translation>«%1» — программа или файл, запускающий программы. Его можно сохранить и посмотреть отдельно.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Can&apos;t open the attachment.</source>
        <translation>Не удалось открыть вложение.</translation>
    </message>
    <message>
        <source>No private copy of %1 could be made. Check the free space, and whether the preview shows it.</source>
        <translation>Не удалось создать закрытую копию «%1». Проверьте свободное место или воспользуйтесь просмотром.</translation>
    </message>
    <message>
        <source>No program was found that opens %1. It can be saved instead.</source>
        <translation>Не найдена программа, открывающая «%1». Файл можно сохранить.</translation>
    </message>
    <message>
        <source>“%1” is open in another program.</source>
        <translation>Файл «%1» открыт в другой программе.</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are open in other programs.</source>
        <translation>
            <numerusform>%n вложение открыто в другой программе.</numerusform>
            <numerusform>%n вложения открыты в других программах.</numerusform>
            <numerusform>%n вложений открыто в других программах.</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy lies readable in a private folder until the safe locks. It can not be written to: changes made there are not taken back into the safe. Save them under another name and attach that file.</source>
        <translation>До блокировки сейфа в закрытой папке лежит читаемая копия. Она доступна только для чтения: изменения в ней не попадут в сейф. Сохраните их под другим именем и вложите полученный файл.</translation>
    </message>
    <message>
        <source>Can&apos;t remove the copy.</source>
        <translation>Не удалось удалить копию.</translation>
    </message>
    <message>
        <source>Another program may still hold it open. It is tried again when the safe locks.</source>
        <translation>Возможно, она ещё открыта в другой программе. При блокировке сейфа попытка повторится.</translation>
    </message>
</context>
<context>
    <name>AttachmentInput</name>
    <message>
        <source>Picture %1.png</source>
        <translation>Рисунок %1.png</translation>
    </message>
</context>
<context>
    <name>AttachmentPreview</name>
    <message>
        <source>There is no preview for this kind of file.</source>
        <translation>Просмотр файлов этого вида невозможен.</translation>
    </message>
    <message>
        <source>This is the beginning; save the file to see all of it.</source>
        <translation>Это только начало; чтобы увидеть всё, сохраните файл.</translation>
    </message>
    <message>
        <source>Letters of one width</source>
        <translation>Моноширинный шрифт</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 пикс.</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Открыть в другой программе</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
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
        <translation>Показать %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Open in another program</source>
        <translation>Открыть в другой программе</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Переименовать…</translation>
    </message>
</context>
<context>
    <name>AttachmentsCard</name>
    <message>
        <source>Attach files…</source>
        <translation>Вложить файлы…</translation>
    </message>
    <message>
        <source>Files and pictures can also be dropped here, or pasted with Ctrl+V</source>
        <translation>Файлы и рисунки можно также перетащить сюда или вставить клавишами Ctrl+V</translation>
    </message>
    <message>
        <source>Being encrypted…</source>
        <translation>Шифруется…</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Выберите файл</translation>
    </message>
    <message>
        <source>Drop to attach</source>
        <translation>Отпустите, чтобы вложить</translation>
    </message>
</context>
<context>
    <name>BackupRow</name>
    <message>
        <source>Restore from a backup…</source>
        <translation>Восстановить из копии…</translation>
    </message>
    <message>
        <source>Backing up</source>
        <translation>Создание копии</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Отмена…</translation>
    </message>
    <message>
        <source>There is no safe to back up yet.</source>
        <translation>Копировать пока нечего: сейфов ещё нет.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Копировать сейчас</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Создание копии…</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Чтение копий…</translation>
    </message>
    <message>
        <source>You can go on working.</source>
        <translation>Можно продолжать работу.</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>today</source>
        <translation>сегодня</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>вчера</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>завтра</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>a day, a time of day</comment>
        <translation>%1 в %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Damaged, can&apos;t be restored · %1</source>
        <translation>Повреждена, восстановить нельзя · %1</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Последняя копия: %1</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Копий ещё нет</translation>
    </message>
    <message>
        <source>Automatic backups are off.</source>
        <translation>Автоматическое копирование выключено.</translation>
    </message>
    <message>
        <source>Next backup: in a moment</source>
        <translation>Следующая копия: вот-вот</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Следующая копия: %1</translation>
    </message>
    <message>
        <source>The folder for backups is not there. Connect its drive, or choose another folder.</source>
        <translation>Папка для копий недоступна. Подключите её диск или выберите другую папку.</translation>
    </message>
    <message>
        <source>The folder for backups can&apos;t be written to. Choose another folder.</source>
        <translation>Папка для копий недоступна для записи. Выберите другую.</translation>
    </message>
    <message>
        <source>%1: not there, or it can&apos;t be read</source>
        <translation>%1: недоступен или не читается</translation>
    </message>
    <message>
        <source>%1: not backed up yet</source>
        <translation>%1: копии ещё нет</translation>
    </message>
    <message>
        <source>%1: %2, unchanged since</source>
        <translation>%1: %2, с тех пор без изменений</translation>
    </message>
    <message>
        <source>%1: %2, changed since</source>
        <translation>%1: %2, с тех пор изменён</translation>
    </message>
    <message>
        <source>Backed up and checked: %1.</source>
        <translation>Скопировано и проверено: %1.</translation>
    </message>
    <message>
        <source>Unchanged since the last backup: %1.</source>
        <translation>Без изменений с последней копии: %1.</translation>
    </message>
    <message>
        <source>Not backed up, as the folder is not there: %1. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Не скопировано, так как папка недоступна: %1. Если она на съёмном носителе, подключите его и повторите попытку.</translation>
    </message>
    <message>
        <source>Not yet backed up, as the password is being changed or it is being archived: %1. This is tried again in a minute.</source>
        <translation>Ещё не скопировано, так как меняется пароль или идёт архивация: %1. Через минуту попытка повторится.</translation>
    </message>
    <message>
        <source>Cancelled: %1. Earlier backups are left as they are.</source>
        <translation>Отменено: %1. Прежние копии оставлены без изменений.</translation>
    </message>
    <message>
        <source>Not backed up: “%1”. %2</source>
        <translation>Не скопировано: «%1». %2</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>1 item could not be read</source>
        <translation>Не удалось прочитать 1 запись</translation>
    </message>
    <message numerus="yes">
        <source>%n items could not be read</source>
        <translation>
            <numerusform>Не удалось прочитать %n запись</numerusform>
            <numerusform>Не удалось прочитать %n записи</numerusform>
            <numerusform>Не удалось прочитать %n записей</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more in the same folder</source>
        <translation>
            <numerusform>и ещё %n в той же папке</numerusform>
            <numerusform>и ещё %n в той же папке</numerusform>
            <numerusform>и ещё %n в той же папке</numerusform>
        </translation>
    </message>
    <message>
        <source>Their files were left as they are. A backup may hold them undamaged:
%1</source>
        <translation>Их файлы оставлены без изменений. Возможно, они уцелели в резервной копии:
%1</translation>
    </message>
</context>
<context>
    <name>BusSessionWatch</name>
    <message>
        <source>Locking the safe</source>
        <translation>Блокировка сейфа</translation>
    </message>
</context>
<context>
    <name>CapsIndicator</name>
    <message>
        <source>CAPS ON</source>
        <translation>CAPS ВКЛ</translation>
    </message>
    <message>
        <source>CAPS OFF</source>
        <translation>CAPS ВЫКЛ</translation>
    </message>
</context>
<context>
    <name>CardFace</name>
    <message>
        <source>Click to copy</source>
        <translation>Нажмите, чтобы скопировать</translation>
    </message>
</context>
<context>
    <name>CategoryListView</name>
    <message>
        <source>Restore all</source>
        <translation>Восстановить все</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Очистить корзину</translation>
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
        <translation>Смена пароля</translation>
    </message>
    <message>
        <source>Only you know it. It cannot be recovered.</source>
        <translation>Пароль знаете только Вы. Восстановить его невозможно.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Сменить пароль</translation>
    </message>
    <message>
        <source>Old password:</source>
        <translation>Старый пароль:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Новый пароль:</translation>
    </message>
    <message>
        <source>Confirm:</source>
        <translation>Повтор пароля:</translation>
    </message>
    <message>
        <source>Hint:</source>
        <translation>Подсказка:</translation>
    </message>
</context>
<context>
    <name>ChangePasswordRules</name>
    <message>
        <source>Old password can not be empty</source>
        <translation>Введите старый пароль</translation>
    </message>
    <message>
        <source>Old password is invalid. Try again</source>
        <translation>Старый пароль неверный. Попробуйте ещё раз</translation>
    </message>
    <message>
        <source>New password can not be empty</source>
        <translation>Введите новый пароль</translation>
    </message>
    <message>
        <source>New password can not be the same as the old password</source>
        <translation>Новый пароль не должен совпадать со старым</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>Повторите пароль</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Пароли не совпадают</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>Введите подсказку</translation>
    </message>
    <message>
        <source>“%1” has its new password. From now on only that one opens it. Backups made before still open with the old one.</source>
        <translation>У сейфа «%1» новый пароль. Теперь его открывает только он. Прежние копии по-прежнему открываются старым.</translation>
    </message>
    <message>
        <source>The password was not changed. The old one still opens “%1”.</source>
        <translation>Пароль не изменён. Сейф «%1» по-прежнему открывается старым.</translation>
    </message>
    <message>
        <source>“%1” was locked before the change was done. The old password still opens it.</source>
        <translation>Сейф «%1» заблокирован до окончания смены пароля. Он по-прежнему открывается старым паролем.</translation>
    </message>
    <message>
        <source>The password was not changed: another program is using the safe. The old one still opens it. Wait until the other program is done, then try again.</source>
        <translation>Пароль не изменён: сейф использует другая программа. Он по-прежнему открывается старым паролем. Подождите, пока та программа закончит, и повторите попытку.</translation>
    </message>
    <message>
        <source>The password was not changed: some files of the safe do not open, and under a new password they would be lost. The old one still opens the safe. Bring these files back from a backup or move them out of the folder of the safe, then try again.</source>
        <translation>Пароль не изменён: некоторые файлы сейфа не открываются и при новом пароле были бы потеряны. Сейф по-прежнему открывается старым паролем. Верните эти файлы из резервной копии или уберите их из папки сейфа и повторите попытку.</translation>
    </message>
    <message>
        <source>The password was not changed: the files of the safe could not be written. The old one still opens it. Check the free space and that the folder of the safe can be written to, then try again.</source>
        <translation>Пароль не изменён: не удалось записать файлы сейфа. Он по-прежнему открывается старым паролем. Проверьте свободное место и доступность папки сейфа для записи и повторите попытку.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens the safe, but perhaps not every item; this old one still opens them all.</source>
        <translation>Смена пароля сейфа «%1» была прервана. Новый пароль открывает сейф, но, возможно, не каждую запись; этот старый пока открывает все.</translation>
    </message>
    <message>
        <source>A change of the password of “%1” was interrupted. The new password opens %2 of %3 items; the old one still opens those that were there before. Change nothing now: it would be missing when you go back.</source>
        <translation>Смена пароля сейфа «%1» была прервана. Новый пароль открывает записей: %2 из %3; старый пока открывает те, что были раньше. Сейчас ничего не меняйте: при возврате к старому изменения пропадут.</translation>
    </message>
    <message>
        <source>To go back to the old password, quit the program and open the folder of the safe. Keep a copy of “safe.passid” in another place. Then copy “safe.passid.bak” over “safe.passid”: every item opens with the old password again, and you can change it anew.</source>
        <translation>Чтобы вернуться к старому паролю, выйдите из программы и откройте папку сейфа. Сохраните копию «safe.passid» в другом месте. Затем скопируйте «safe.passid.bak» поверх «safe.passid»: каждая запись снова откроется старым паролем, и его можно будет сменить заново.</translation>
    </message>
    <message>
        <source>The change of the password was stopped before it was done, as “%1” had to be saved at once. The old password still opens it. You can change it anew.</source>
        <translation>Смена пароля была остановлена до завершения, так как сейф «%1» нужно было сразу сохранить. Его по-прежнему открывает старый пароль. Вы можете сменить его снова.</translation>
    </message>
    <message>
        <source>This new password was not taken: another change of the password is still under way. Wait until it is done, then try again.</source>
        <translation>Этот новый пароль не принят: другая смена пароля ещё идёт. Дождитесь её окончания и попробуйте снова.</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>Подсказка выдаёт пароль</translation>
    </message>
</context>
<context>
    <name>ChoiceInput</name>
    <message>
        <source>Not specified</source>
        <translation>Не указано</translation>
    </message>
</context>
<context>
    <name>CloudDesk</name>
    <message>
        <source>The copy in the cloud folder is still there.</source>
        <translation>Копия в облачной папке осталась.</translation>
    </message>
    <message>
        <source>Some of its files could not be removed. Remove the folder yourself if you do not need it:
%1</source>
        <translation>Некоторые её файлы не удалось удалить. Удалите папку сами, если она не нужна:
%1</translation>
    </message>
    <message>
        <source>From the cloud folder</source>
        <translation>Из облачной папки</translation>
    </message>
    <message>
        <source>Bringing “%1” over…</source>
        <translation>Загрузка «%1»…</translation>
    </message>
    <message>
        <source>“%1” is on this computer now, and is kept the same as on your other computers. It opens with its own master password.</source>
        <translation>Сейф «%1» теперь на этом компьютере и остаётся таким же, как на других Ваших компьютерах. Он открывается своим мастер-паролем.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Открыть его</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise with the cloud folder.</source>
        <translation>Не удаётся синхронизировать с облачной папкой.</translation>
    </message>
</context>
<context>
    <name>CloudImportDialog</name>
    <message>
        <source>From the cloud folder</source>
        <translation>Из облачной папки</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Другая папка…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Bring over</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Safes in the cloud folder</source>
        <translation>Сейфы в облачной папке</translation>
    </message>
    <message>
        <source>No other safe found</source>
        <translation>Других сейфов не найдено</translation>
    </message>
    <message>
        <source>Safes that you synchronise on another computer appear here as soon as your cloud program has brought them.</source>
        <translation>Сейфы, которые Вы синхронизируете на другом компьютере, появятся здесь, как только их доставит Ваша облачная программа.</translation>
    </message>
    <message>
        <source>These safes are synchronised by another computer. Bring one over to use it here, too; it opens with its own master password.</source>
        <translation>Эти сейфы синхронизирует другой компьютер. Загрузите один из них, чтобы пользоваться им и здесь; он открывается своим мастер-паролем.</translation>
    </message>
    <message>
        <source>%1
made on %2</source>
        <translation>%1
создан %2</translation>
    </message>
</context>
<context>
    <name>CloudOffer</name>
    <message>
        <source>Bring it over…</source>
        <translation>Загрузить его…</translation>
    </message>
    <message>
        <source>You have a safe in your cloud folder: “%1”.</source>
        <translation>В Вашей облачной папке есть сейф: «%1».</translation>
    </message>
    <message numerus="yes">
        <source>You have %n safes in your cloud folder.</source>
        <translation>
            <numerusform>В Вашей облачной папке есть %n сейф.</numerusform>
            <numerusform>В Вашей облачной папке есть %n сейфа.</numerusform>
            <numerusform>В Вашей облачной папке есть %n сейфов.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloudPanel</name>
    <message>
        <source>No folder of a cloud provider was found. Choose the one that yours keeps the same on all computers, or a folder on a USB stick.</source>
        <translation>Папка облачного провайдера не найдена. Выберите ту, которую Ваш провайдер держит одинаковой на всех компьютерах, или папку на USB-накопителе.</translation>
    </message>
    <message>
        <source>Other folder…</source>
        <translation>Другая папка…</translation>
    </message>
    <message>
        <source>There is no safe yet.</source>
        <translation>Сейфов ещё нет.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Облачная папка</translation>
    </message>
    <message>
        <source>A synchronised safe has an encrypted copy in a folder that your cloud provider carries to your other computers. What you change on one arrives on all.</source>
        <translation>У синхронизируемого сейфа есть зашифрованная копия в папке, которую облачный провайдер переносит на другие Ваши компьютеры. Что изменено на одном, появится на всех.</translation>
    </message>
    <message>
        <source>Personal account: %1</source>
        <translation>Личная учётная запись: %1</translation>
    </message>
    <message>
        <source>Business account: %1</source>
        <translation>Рабочая учётная запись: %1</translation>
    </message>
    <message>
        <source>Bring over “%1”…</source>
        <translation>Загрузить «%1»…</translation>
    </message>
    <message>
        <source>Bring over a safe (%1)…</source>
        <translation>Загрузить сейф (%1)…</translation>
    </message>
    <message>
        <source>Choose a folder first.</source>
        <translation>Сначала выберите папку.</translation>
    </message>
    <message>
        <source>Stop synchronising “%1”?</source>
        <translation>Больше не синхронизировать «%1»?</translation>
    </message>
    <message>
        <source>The safe on this computer stays as it is. Its copy in the cloud folder can stay for your other computers, or be removed; then they can&apos;t synchronise any more.</source>
        <translation>Сейф на этом компьютере останется прежним. Его копию в облачной папке можно оставить для других Ваших компьютеров или удалить; тогда они больше не смогут синхронизировать сейф.</translation>
    </message>
    <message>
        <source>Keep the copy</source>
        <translation>Оставить копию</translation>
    </message>
    <message>
        <source>Remove the copy</source>
        <translation>Удалить копию</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>CloudPasswordDialog</name>
    <message>
        <source>New master password</source>
        <translation>Новый мастер-пароль</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Go on with it</source>
        <translation>Продолжить с ним</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>The password of “%1” was changed on another computer. Enter the new one to go on synchronising; from then on the safe opens with it here, too.</source>
        <translation>Пароль сейфа «%1» сменили на другом компьютере. Введите новый, чтобы продолжить синхронизацию; с этого момента сейф и здесь открывается им.</translation>
    </message>
</context>
<context>
    <name>CloudSafeRow</name>
    <message>
        <source>Synchronise now</source>
        <translation>Синхронизировать сейчас</translation>
    </message>
    <message>
        <source>Enter the new password…</source>
        <translation>Ввести новый пароль…</translation>
    </message>
    <message>
        <source>Synchronise “%1”</source>
        <translation>Синхронизировать «%1»</translation>
    </message>
    <message>
        <source>Only on this computer</source>
        <translation>Только на этом компьютере</translation>
    </message>
</context>
<context>
    <name>CloudTexts</name>
    <message>
        <source>Synchronised</source>
        <translation>Синхронизирован</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Синхронизация…</translation>
    </message>
    <message>
        <source>Waiting for files</source>
        <translation>Ожидание файлов</translation>
    </message>
    <message>
        <source>Waiting…</source>
        <translation>Ожидание…</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <source>No cloud folder</source>
        <translation>Нет облачной папки</translation>
    </message>
    <message>
        <source>Wrong folder</source>
        <translation>Не та папка</translation>
    </message>
    <message>
        <source>Can&apos;t synchronise</source>
        <translation>Не синхронизируется</translation>
    </message>
    <message>
        <source>Synchronised %1</source>
        <translation>Синхронизирован %1</translation>
    </message>
    <message>
        <source>Synchronises when the safe is open</source>
        <translation>Синхронизируется, когда сейф открыт</translation>
    </message>
    <message>
        <source>Synchronising, %1 of %2</source>
        <translation>Синхронизация, %1 из %2</translation>
    </message>
    <message>
        <source>Waiting for files to arrive</source>
        <translation>Ожидание прибытия файлов</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n files to arrive</source>
        <translation>
            <numerusform>Ожидается %n файл</numerusform>
            <numerusform>Ожидаются %n файла</numerusform>
            <numerusform>Ожидается %n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Waits until the safe is free</source>
        <translation>Ожидание, пока сейф освободится</translation>
    </message>
    <message>
        <source>The password was changed on another computer</source>
        <translation>Пароль сменили на другом компьютере</translation>
    </message>
    <message>
        <source>The cloud folder is not there</source>
        <translation>Облачная папка недоступна</translation>
    </message>
    <message>
        <source>The cloud folder holds another safe</source>
        <translation>В облачной папке другой сейф</translation>
    </message>
    <message>
        <source>The cloud folder can&apos;t be written to</source>
        <translation>Облачная папка недоступна для записи</translation>
    </message>
    <message>
        <source>The folder of the safe can&apos;t be written to</source>
        <translation>Папка сейфа недоступна для записи</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them.</source>
        <translation>Всё продолжится само, как только их доставит Ваша облачная программа.</translation>
    </message>
    <message>
        <source>It goes on by itself once your cloud program has brought them: %1</source>
        <translation>Всё продолжится само, как только их доставит Ваша облачная программа: %1</translation>
    </message>
    <message>
        <source>The safe is being archived, or its password is being changed.</source>
        <translation>Сейф архивируется, или меняется его пароль.</translation>
    </message>
    <message>
        <source>Enter the new password, and this computer goes on with it.</source>
        <translation>Введите новый пароль, и этот компьютер продолжит с ним.</translation>
    </message>
    <message>
        <source>If it is on a drive that can be taken out, connect the drive. If it was moved, turn synchronising off and on again. Nothing is lost in the meantime.
%1</source>
        <translation>Если она на съёмном носителе, подключите его. Если её переместили, выключите и снова включите синхронизацию. Тем временем ничего не потеряется.
%1</translation>
    </message>
    <message>
        <source>Nothing was read or changed there. Turn synchronising off and on again to choose another folder.
%1</source>
        <translation>Там ничего не прочитано и не изменено. Чтобы выбрать другую папку, выключите и снова включите синхронизацию.
%1</translation>
    </message>
    <message>
        <source>Your changes are in the safe on this computer, but not in the cloud folder. Check the free space and that you may write there; it is tried again every minute.
%1</source>
        <translation>Ваши изменения есть в сейфе на этом компьютере, но не в облачной папке. Проверьте свободное место и право записи в неё; попытка повторяется каждую минуту.
%1</translation>
    </message>
    <message>
        <source>Changes of your other computers could not be taken over. Check the free space and that you may write to the folder of the safe; it is tried again every minute.</source>
        <translation>Не удалось принять изменения с других Ваших компьютеров. Проверьте свободное место и право записи в папку сейфа; попытка повторяется каждую минуту.</translation>
    </message>
    <message>
        <source>This folder is not there: %1</source>
        <translation>Эта папка недоступна: %1</translation>
    </message>
    <message>
        <source>This folder is part of the safe itself. Choose the folder of your cloud provider, or one on another drive.</source>
        <translation>Эта папка — часть самого сейфа. Выберите папку облачного провайдера или папку на другом диске.</translation>
    </message>
    <message>
        <source>The safe itself lies in this folder. Choose a folder that does not hold it.</source>
        <translation>В этой папке лежит сам сейф. Выберите папку, в которой его нет.</translation>
    </message>
    <message>
        <source>Your backups are kept in this folder. Choose another one.</source>
        <translation>В этой папке хранятся Ваши резервные копии. Выберите другую.</translation>
    </message>
    <message>
        <source>This folder belongs to another safe. Choose another one.</source>
        <translation>Эта папка принадлежит другому сейфу. Выберите другую.</translation>
    </message>
    <message>
        <source>This folder belongs to the safe “%1”. Choose another one.</source>
        <translation>Эта папка принадлежит сейфу «%1». Выберите другую.</translation>
    </message>
    <message>
        <source>Another copy of this safe on this computer is synchronised there already. Turn that off first, or choose another folder.</source>
        <translation>Здесь уже синхронизируется другая копия этого сейфа с этого компьютера. Сначала выключите её синхронизацию или выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be written to. Check the free space and that you may write there: %1</source>
        <translation>Эта папка недоступна для записи. Проверьте свободное место и право записи в неё: %1</translation>
    </message>
    <message>
        <source>This is not the password that was set on the other computer. Try again.</source>
        <translation>Это не тот пароль, что задан на другом компьютере. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The safe is busy with something else, such as a backup. Try again in a moment.</source>
        <translation>Сейф занят другим делом, например копированием. Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>The safe on this computer could not be changed; it is as it was. Check the free space, and that every item of the safe can be read, then try again.</source>
        <translation>Сейф на этом компьютере не удалось изменить; он остался прежним. Проверьте свободное место и что каждая запись сейфа читается, и повторите попытку.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Не удаётся записать сейф. Проверьте свободное место и право записи в папку Ваших сейфов.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Сейчас импортируется другой сейф. Повторите попытку, когда это закончится.</translation>
    </message>
    <message>
        <source>The safe in the cloud folder can&apos;t be read. It may not have arrived whole yet; wait until your cloud program is done, and try again.</source>
        <translation>Сейф в облачной папке не читается. Возможно, он пришёл ещё не целиком; подождите, пока облачная программа закончит, и повторите попытку.</translation>
    </message>
    <message>
        <source>One item came from the cloud folder</source>
        <translation>Из облачной папки пришла одна запись</translation>
    </message>
    <message numerus="yes">
        <source>%n items came from the cloud folder</source>
        <translation>
            <numerusform>Из облачной папки пришла %n запись</numerusform>
            <numerusform>Из облачной папки пришли %n записи</numerusform>
            <numerusform>Из облачной папки пришло %n записей</numerusform>
        </translation>
    </message>
    <message>
        <source>One item was deleted on another computer</source>
        <translation>Одна запись удалена на другом компьютере</translation>
    </message>
    <message numerus="yes">
        <source>%n items were deleted on another computer</source>
        <translation>
            <numerusform>%n запись удалена на другом компьютере</numerusform>
            <numerusform>%n записи удалены на другом компьютере</numerusform>
            <numerusform>%n записей удалено на другом компьютере</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyNotice</name>
    <message>
        <source>Value copied to clipboard</source>
        <translation>Значение скопировано</translation>
    </message>
    <message>
        <source>clears in %1 s</source>
        <translation>очистка через %1 с</translation>
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
        <translation>Показать все страны</translation>
    </message>
    <message>
        <source>Show all countries (Alt+Down)</source>
        <translation>Показать все страны (Alt+Вниз)</translation>
    </message>
</context>
<context>
    <name>CreateSafeForm</name>
    <message>
        <source>New Safe name</source>
        <translation>Название нового сейфа</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Повтор пароля</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Подсказка</translation>
    </message>
    <message>
        <source>Create safe failed!</source>
        <translation>Не удалось создать сейф!</translation>
    </message>
    <message>
        <source>A safe needs an empty folder that you may write to. This one is not:
%1</source>
        <translation>Сейфу нужна пустая папка, доступная для записи. Эта не подходит:
%1</translation>
    </message>
</context>
<context>
    <name>CreateSafePage</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Новый сейф</translation>
    </message>
    <message>
        <source>Only you know its password. It cannot be recovered.</source>
        <translation>Пароль знаете только Вы. Восстановить его невозможно.</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>У Вас ещё нет сейфа.
Создать?</translation>
    </message>
    <message>
        <source>Create
another one?</source>
        <translation>Создать
ещё один?</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Восстановить из копии…</translation>
    </message>
    <message>
        <source>Import from an archive…</source>
        <translation>Импорт из архива…</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>В папке %1</translation>
    </message>
    <message>
        <source>Kept with your other safes</source>
        <translation>Вместе с другими сейфами</translation>
    </message>
    <message>
        <source>Usual place</source>
        <translation>Обычное место</translation>
    </message>
    <message>
        <source>Keep the safe in the usual place</source>
        <translation>Хранить сейф в обычном месте</translation>
    </message>
    <message>
        <source>Choose the folder of the safe…</source>
        <translation>Выбрать папку сейфа…</translation>
    </message>
</context>
<context>
    <name>CreateSafeRules</name>
    <message>
        <source>Safe name can not be empty</source>
        <translation>Укажите название сейфа</translation>
    </message>
    <message>
        <source>Password can not be empty</source>
        <translation>Введите пароль</translation>
    </message>
    <message>
        <source>Confirm password can not be empty</source>
        <translation>Повторите пароль</translation>
    </message>
    <message>
        <source>Password does not match</source>
        <translation>Пароли не совпадают</translation>
    </message>
    <message>
        <source>Hint can not be empty</source>
        <translation>Введите подсказку</translation>
    </message>
    <message>
        <source>The hint gives the password away</source>
        <translation>Подсказка выдаёт пароль</translation>
    </message>
</context>
<context>
    <name>DatePopup</name>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
</context>
<context>
    <name>DeleteSafeDialog</name>
    <message>
        <source>Delete safe</source>
        <translation>Удаление сейфа</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>Удалить «%1» навсегда?</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups stay.</source>
        <translation>Всё его содержимое исчезнет с этого компьютера. Резервные копии останутся.</translation>
    </message>
    <message>
        <source>Everything in it will be gone from this computer. Its backups and its copy in the cloud folder stay.</source>
        <translation>Всё его содержимое исчезнет с этого компьютера. Резервные копии и копия в облачной папке останутся.</translation>
    </message>
    <message>
        <source>Master password of this safe</source>
        <translation>Мастер-пароль этого сейфа</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Неверный пароль! Попробуйте ещё раз</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>Can&apos;t keep the edit.</source>
        <translation>Не удалось сохранить черновик.</translation>
    </message>
    <message>
        <source>What you were typing could not be kept, as its file could not be written. Check the free space and the permissions of the program&apos;s data folder.</source>
        <translation>Введённое не удалось сохранить как черновик, так как его файл не записывается. Проверьте свободное место и права доступа к папке данных программы.</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>an item without a title</source>
        <translation>запись без названия</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Продолжить правку</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Отбросить</translation>
    </message>
    <message>
        <source>You were adding %1 when the safe locked.</source>
        <translation>Вы добавляли %1, когда сейф был заблокирован.</translation>
    </message>
    <message>
        <source>You were editing %1 when the safe locked.</source>
        <translation>Вы изменяли %1, когда сейф был заблокирован.</translation>
    </message>
    <message>
        <source>What you had typed was kept, encrypted, and is not saved yet.</source>
        <translation>Черновик сохранён в зашифрованном виде, но в запись ещё не внесён.</translation>
    </message>
    <message>
        <source>The item was deleted meanwhile. What you had typed can become a new item.</source>
        <translation>Тем временем запись была удалена. Из черновика можно сделать новую запись.</translation>
    </message>
    <message>
        <source>The item is in the trash now. What you had typed was kept.</source>
        <translation>Теперь запись в корзине. Черновик сохранён.</translation>
    </message>
    <message>
        <source>The item was changed meanwhile. What you had typed was kept.</source>
        <translation>Тем временем запись была изменена. Черновик сохранён.</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Удалить файл</translation>
    </message>
    <message>
        <source>An edit that was kept could not be read.</source>
        <translation>Не удалось прочитать черновик.</translation>
    </message>
    <message>
        <source>Its file is damaged or belongs to another password, and was left as it is:
%1</source>
        <translation>Его файл повреждён или относится к другому паролю и оставлен без изменений:
%1</translation>
    </message>
    <message>
        <source>%1 is in the trash. What would you like to do with what you had typed?</source>
        <translation>В корзине: %1. Что сделать с черновиком?</translation>
    </message>
    <message>
        <source>%1 was changed after you had begun. What would you like to do with what you had typed?</source>
        <translation>Изменено после начала правки: %1. Что сделать с черновиком?</translation>
    </message>
    <message>
        <source>Continue as a new item</source>
        <translation>Продолжить как новую запись</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Replace the change</source>
        <translation>Заменить изменение</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Подтверждение</translation>
    </message>
    <message>
        <source>Do you want to discard what you had typed about %1?
It can not be restored.</source>
        <translation>Отбросить черновик (%1)?
Восстановить его будет нельзя.</translation>
    </message>
</context>
<context>
    <name>ExcludedSitesPanel</name>
    <message>
        <source>None. “Never for this site” puts one here.</source>
        <translation>Пока нет. Кнопка «Никогда для этого сайта» добавит сайт сюда.</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Снова спрашивать</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Сайты без предложения сохранить</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Логины, которые Вы там вводите, не предлагается сохранить.</translation>
    </message>
    <message>
        <source>The list could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>Список не удалось записать. Проверьте свободное место и права доступа к папке настроек.</translation>
    </message>
</context>
<context>
    <name>ExpiryText</name>
    <message>
        <source>Expired</source>
        <translation>Истекло</translation>
    </message>
    <message>
        <source>Expires today</source>
        <translation>Истекает сегодня</translation>
    </message>
    <message>
        <source>Expires in 1 day</source>
        <translation>Истекает через 1 день</translation>
    </message>
    <message numerus="yes">
        <source>Expires in %n days</source>
        <translation>
            <numerusform>Истекает через %n день</numerusform>
            <numerusform>Истекает через %n дня</numerusform>
            <numerusform>Истекает через %n дней</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The folder of the safe is not there. If it is on a drive that can be taken out, connect it and try again.</source>
        <translation>Папка сейфа недоступна. Если она на съёмном носителе, подключите его и повторите попытку.</translation>
    </message>
    <message>
        <source>There is no safe in the folder any more.</source>
        <translation>В этой папке больше нет сейфа.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed, or it is being archived already. Try again when that is done.</source>
        <translation>Пароль сейфа сейчас меняется, или сейф уже архивируется. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Some of the safe&apos;s files can&apos;t be read. Check that its folder is there and that you may read and write it.</source>
        <translation>Некоторые файлы сейфа не читаются. Проверьте, что его папка на месте и доступна для чтения и записи.</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written. Check the free space and that you may write to its folder, or choose another one.</source>
        <translation>Не удаётся записать архив. Проверьте свободное место и право записи в его папку или выберите другую.</translation>
    </message>
    <message>
        <source>The safe holds more than the 4 GiB that fit into an archive. Copy its folder instead, or take out large attachments.</source>
        <translation>Сейф больше 4 ГиБ, которые вмещает архив. Скопируйте его папку или уберите большие вложения.</translation>
    </message>
    <message>
        <source>The archive could not be read back after it was written, and was removed. Choose a folder on another drive.</source>
        <translation>Записанный архив не удалось прочитать, и он удалён. Выберите папку на другом диске.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Save as</source>
        <translation>Сохранить как</translation>
    </message>
    <message numerus="yes">
        <source>%n items are in “%1” now. Everyone who opens the file can read them: delete it when it has served.</source>
        <translation>
            <numerusform>В файле «%1» теперь %n запись. Прочитать содержимое может любой, кто откроет файл: удалите его, как только он станет не нужен.</numerusform>
            <numerusform>В файле «%1» теперь %n записи. Прочитать содержимое может любой, кто откроет файл: удалите его, как только он станет не нужен.</numerusform>
            <numerusform>В файле «%1» теперь %n записей. Прочитать содержимое может любой, кто откроет файл: удалите его, как только он станет не нужен.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file cannot be written, and nothing of it is left. Check the free space and the permissions, or choose another folder:
%1</source>
        <translation>Файл не удалось записать, и от него ничего не осталось. Проверьте свободное место и права доступа или выберите другую папку:
%1</translation>
    </message>
    <message>
        <source>The safe was locked before the file was written. Nothing of it is left.</source>
        <translation>Сейф заблокирован до записи файла. От файла ничего не осталось.</translation>
    </message>
    <message>
        <source>Export items</source>
        <translation>Экспорт записей</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected items</source>
        <translation>
            <numerusform>Выбранные записи (%n)</numerusform>
            <numerusform>Выбранные записи (%n)</numerusform>
            <numerusform>Выбранные записи (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>All items of the safe (%1)</source>
        <translation>Все записи сейфа (%1)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>JSON: everything, for another safe</source>
        <translation>JSON: всё, для другого сейфа</translation>
    </message>
    <message>
        <source>CSV: logins, for browsers and other programs</source>
        <translation>CSV: логины, для браузеров и других программ</translation>
    </message>
    <message>
        <source>Password of the safe</source>
        <translation>Пароль сейфа</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Password of the safe “%1”</source>
        <translation>Пароль сейфа «%1»</translation>
    </message>
    <message>
        <source>The file is not encrypted: everyone who gets hold of it can read your passwords. Do not leave it lying, nor in a folder that is synchronised, and delete it as soon as it has served.</source>
        <translation>Файл не зашифрован: любой, к кому он попадёт, прочитает Ваши пароли. Не оставляйте его без присмотра или в синхронизируемой папке и удалите, как только он станет не нужен.</translation>
    </message>
    <message numerus="yes">
        <source>%n items that are no logins are left out.</source>
        <translation>
            <numerusform>Не войдёт %n запись других видов, кроме логинов.</numerusform>
            <numerusform>Не войдут %n записи других видов, кроме логинов.</numerusform>
            <numerusform>Не войдут %n записей других видов, кроме логинов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n attachments are left out. An archive of the safe holds them.</source>
        <translation>
            <numerusform>Не войдёт %n вложение. Вложения есть в архиве сейфа.</numerusform>
            <numerusform>Не войдут %n вложения. Они есть в архиве сейфа.</numerusform>
            <numerusform>Не войдут %n вложений. Они есть в архиве сейфа.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password of the safe.</source>
        <translation>Это не пароль сейфа.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Записывается «%1»…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Показать папку</translation>
    </message>
</context>
<context>
    <name>ExtensionPage</name>
    <message>
        <source>You can install plugin later from application Settings window</source>
        <translation>Расширение можно установить и позже, в окне настроек программы</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>%1, hidden</source>
        <translation>%1, скрыто</translation>
    </message>
    <message>
        <source>View text under dots</source>
        <translation>Показать скрытый текст</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Открыть в браузере</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Копировать в буфер обмена</translation>
    </message>
    <message>
        <source>Copy to clipboard: %1</source>
        <translation>Копировать в буфер обмена: %1</translation>
    </message>
    <message>
        <source>Click to copy</source>
        <translation>Нажмите, чтобы скопировать</translation>
    </message>
    <message>
        <source>Generate password</source>
        <translation>Создать пароль</translation>
    </message>
    <message>
        <source>Change: %1</source>
        <translation>Изменить: %1</translation>
    </message>
</context>
<context>
    <name>FieldRules</name>
    <message>
        <source>Required field is empty</source>
        <translation>Заполните обязательное поле</translation>
    </message>
    <message>
        <source>Url is invalid</source>
        <translation>Неверный адрес</translation>
    </message>
    <message>
        <source>Please use 4-digit value</source>
        <translation>Введите 4 цифры</translation>
    </message>
    <message>
        <source>Please use 3-digit value</source>
        <translation>Введите 3 цифры</translation>
    </message>
    <message>
        <source>Correct value is up to 26 characters in range A-Z including spaces</source>
        <translation>Допустимы до 26 знаков: латинские буквы и пробелы</translation>
    </message>
    <message>
        <source>Incorrect card number</source>
        <translation>Неверный номер карты</translation>
    </message>
    <message>
        <source>“%1” is not a complete address</source>
        <translation>«%1» — неполный адрес</translation>
    </message>
    <message>
        <source>“%1” is not a country code</source>
        <translation>«%1» — не код страны</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <translation>«%1» — не число</translation>
    </message>
    <message>
        <source>“%1” is not a date</source>
        <translation>«%1» — не дата</translation>
    </message>
</context>
<context>
    <name>FindingRow</name>
    <message>
        <source>The same password as %1</source>
        <translation>Тот же пароль, что у «%1»</translation>
    </message>
    <message numerus="yes">
        <source>The same password as %1 and %n more</source>
        <translation>
            <numerusform>Тот же пароль, что у «%1» и ещё %n записи</numerusform>
            <numerusform>Тот же пароль, что у «%1» и ещё %n записей</numerusform>
            <numerusform>Тот же пароль, что у «%1» и ещё %n записей</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Nothing changed since %1</source>
        <translation>Без изменений с %1</translation>
    </message>
    <message>
        <source>The address begins with http: others can read along</source>
        <translation>Адрес начинается с http: данные могут прочесть другие</translation>
    </message>
    <message>
        <source>Stop ignoring</source>
        <translation>Учитывать</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Change it…</source>
        <translation>Изменить…</translation>
    </message>
    <message>
        <source>Open the site&apos;s page for a new password</source>
        <translation>Открыть страницу смены пароля на сайте</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Which language do you want to use?</source>
        <translation>На каком языке показывать программу?</translation>
    </message>
    <message>
        <source>Create a safe</source>
        <translation>Новый сейф</translation>
    </message>
    <message>
        <source>It keeps your passwords. Only you know its password, and it cannot be recovered.</source>
        <translation>В нём хранятся пароли. Его пароль знаете только Вы, и восстановить его невозможно.</translation>
    </message>
    <message>
        <source>Fill forms in your browser</source>
        <translation>Заполнение форм в браузере</translation>
    </message>
    <message>
        <source>You are ready</source>
        <translation>Всё готово</translation>
    </message>
    <message>
        <source>The program waits in the tray when you close its window.</source>
        <translation>После закрытия окна программа остаётся в области уведомлений.</translation>
    </message>
    <message>
        <source>Bring your passwords over</source>
        <translation>Перенос паролей</translation>
    </message>
    <message>
        <source>From a browser or another program. You can also do it later, in the menu of the safe.</source>
        <translation>Из браузера или другой программы. Это можно сделать и позже, в меню сейфа.</translation>
    </message>
    <message>
        <source>Install plugin very fast and simple</source>
        <translation>Установить расширение очень быстро и просто</translation>
    </message>
</context>
<context>
    <name>FormFillFlow</name>
    <message>
        <source>Can&apos;t login.</source>
        <translation>Не удалось войти.</translation>
    </message>
    <message>
        <source>Item %1 has wrong url: %2</source>
        <translation>У записи «%1» неверный адрес: %2</translation>
    </message>
    <message>
        <source>No browser is connected</source>
        <translation>Нет подключённого браузера</translation>
    </message>
    <message>
        <source>To fill this into a page, open your browser with the extension.</source>
        <translation>Чтобы заполнить страницу, откройте браузер с расширением.</translation>
    </message>
    <message>
        <source>Nothing to fill</source>
        <translation>Заполнять нечего</translation>
    </message>
    <message>
        <source>The page shows no empty fields for “%1”.</source>
        <translation>На странице нет пустых полей для «%1».</translation>
    </message>
    <message>
        <source>This page is not encrypted</source>
        <translation>Эта страница не зашифрована</translation>
    </message>
    <message>
        <source>A card is filled into encrypted pages (https) alone.</source>
        <translation>Карта заполняется только на зашифрованных страницах (https).</translation>
    </message>
    <message>
        <source>An identity is filled into encrypted pages (https) alone.</source>
        <translation>Личные данные заполняются только на зашифрованных страницах (https).</translation>
    </message>
</context>
<context>
    <name>GPMAppCore</name>
    <message>
        <source>Warning</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Не удалось сохранить изменения.</translation>
    </message>
    <message>
        <source>These files could not be written; what they held before is still there. Check the free space and the permissions, then save again:
%1</source>
        <translation>Эти файлы не удалось записать; их прежнее содержимое цело. Проверьте свободное место и права доступа и сохраните ещё раз:
%1</translation>
    </message>
    <message>
        <source>Can&apos;t use the hotkey.</source>
        <translation>Сочетание клавиш недоступно.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Choose another combination in the settings, or end that program and start this one anew.</source>
        <translation>%1 используется другой программой. Выберите другое сочетание в настройках или закройте ту программу и перезапустите эту.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can&apos;t back up.</source>
        <translation>Не удалось создать резервную копию.</translation>
    </message>
    <message>
        <source>%1

Earlier backups are left as they are, in:
%2</source>
        <translation>%1

Прежние копии оставлены без изменений в папке:
%2</translation>
    </message>
</context>
<context>
    <name>GeneratorPanel</name>
    <message>
        <source>Generated password</source>
        <translation>Созданный пароль</translation>
    </message>
    <message>
        <source>Another password</source>
        <translation>Другой пароль</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Длина:</translation>
    </message>
    <message>
        <source>Special chars:</source>
        <translation>Спецсимволы:</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Недавние</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>There is nothing to place it in.</source>
        <translation>Вставить пароль некуда.</translation>
    </message>
    <message>
        <source>The passwords made since the safe was opened; locking it wipes them</source>
        <translation>Пароли, созданные после открытия сейфа; при блокировке они стираются</translation>
    </message>
    <message>
        <source>Passwords are remembered only while a safe is open</source>
        <translation>Пароли запоминаются, только пока сейф открыт</translation>
    </message>
    <message>
        <source>Hidden password</source>
        <translation>Скрытый пароль</translation>
    </message>
    <message>
        <source>used</source>
        <translation>использован</translation>
    </message>
    <message>
        <source>Copy the password of %1</source>
        <translation>Копировать пароль от %1</translation>
    </message>
</context>
<context>
    <name>HealthDialog</name>
    <message>
        <source>Health</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Слабые</translation>
    </message>
    <message>
        <source>Reused</source>
        <translation>Повторные</translation>
    </message>
    <message>
        <source>Older than 2 years</source>
        <translation>Старше 2 лет</translation>
    </message>
    <message>
        <source>Not on https</source>
        <translation>Без https</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Истекают</translation>
    </message>
    <message>
        <source>Looking at the items…</source>
        <translation>Записи проверяются…</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Показать ещё (%1)</translation>
    </message>
    <message>
        <source>Back to what is not ignored</source>
        <translation>Назад к учитываемым</translation>
    </message>
    <message>
        <source>Ignored (%1)</source>
        <translation>Пропущенные (%1)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Not all items have been looked at yet.</source>
        <translation>Проверены ещё не все записи.</translation>
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
        <translation>Нажмите клавиши</translation>
    </message>
    <message>
        <source>Press a combination of keys; Backspace clears it</source>
        <translation>Нажмите сочетание клавиш; Backspace удаляет его</translation>
    </message>
</context>
<context>
    <name>HotkeyRules</name>
    <message>
        <source>Use it together with Ctrl, Alt or Meta</source>
        <translation>Добавьте Ctrl, Alt или Meta</translation>
    </message>
    <message>
        <source>%1 is taken by: %2</source>
        <translation>%1 уже занято: %2</translation>
    </message>
    <message>
        <source>This key can not be used</source>
        <translation>Эту клавишу использовать нельзя</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>The file is not there or can&apos;t be read.</source>
        <translation>Файл отсутствует или не читается.</translation>
    </message>
    <message>
        <source>Another safe is being imported. Try again when that is done.</source>
        <translation>Сейчас импортируется другой сейф. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The safe can&apos;t be written. Check the free space and that you may write to the folder of your safes.</source>
        <translation>Не удаётся записать сейф. Проверьте свободное место и право записи в папку сейфов.</translation>
    </message>
    <message>
        <source>The file would unpack to more than 4 GiB, or to a hundred times its size. No safe does that, so it was not imported.</source>
        <translation>После распаковки файл занял бы больше 4 ГиБ или в сто раз больше своего размера. С сейфами так не бывает, поэтому он не импортирован.</translation>
    </message>
    <message>
        <source>This file is not an archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>Этот файл не архив. Выберите файл, полученный при экспорте или резервном копировании сейфа.</translation>
    </message>
    <message>
        <source>The file is damaged or was cut short. Copy it again from where it came from, or choose another backup.</source>
        <translation>Файл повреждён или обрезан. Скопируйте его заново из источника или выберите другую резервную копию.</translation>
    </message>
    <message>
        <source>The archive has a password of its own or is packed in a way that can&apos;t be read. Pack it again as a plain ZIP file.</source>
        <translation>У архива есть собственный пароль, или он упакован нечитаемым способом. Упакуйте его заново как обычный файл ZIP.</translation>
    </message>
    <message>
        <source>The archive holds a file that would be written outside the safe. Somebody may have tampered with it.</source>
        <translation>В архиве есть файл, который был бы записан вне сейфа. Возможно, архив подделан.</translation>
    </message>
    <message>
        <source>The archive holds two files of the same name. Somebody may have tampered with it.</source>
        <translation>В архиве два файла с одним именем. Возможно, архив подделан.</translation>
    </message>
    <message>
        <source>There is no safe in this archive. Choose a file that was exported or backed up from a safe.</source>
        <translation>В этом архиве нет сейфа. Выберите файл, полученный при экспорте или резервном копировании сейфа.</translation>
    </message>
</context>
<context>
    <name>InstallSteps</name>
    <message>
        <source>Add the extension to %1</source>
        <translation>Добавление расширения в %1</translation>
    </message>
    <message>
        <source>The extension did not come with this program. Install the program anew to get it.</source>
        <translation>Расширения нет в составе этой программы. Чтобы его получить, переустановите программу.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the address</source>
        <translation>Копировать адрес</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Показать папку</translation>
    </message>
    <message>
        <source>In %1 open the address %2</source>
        <translation>В %1 откройте адрес %2</translation>
    </message>
    <message>
        <source>Choose “Load Temporary Add-on…” and the file “manifest.json” in the folder of the extension</source>
        <translation>Выберите «Загрузить временное дополнение…» и файл «manifest.json» в папке расширения</translation>
    </message>
    <message>
        <source>Come back here: the program asks whether Firefox may connect</source>
        <translation>Вернитесь сюда: программа спросит, можно ли Firefox подключиться</translation>
    </message>
    <message>
        <source>Switch on “Developer mode”</source>
        <translation>Включите «Режим разработчика»</translation>
    </message>
    <message>
        <source>Choose “Load unpacked” and the folder of the extension</source>
        <translation>Выберите «Загрузить распакованное расширение» и папку расширения</translation>
    </message>
    <message>
        <source>Folder of the extension</source>
        <translation>Папка расширения</translation>
    </message>
    <message>
        <source>Firefox forgets an extension that was added this way when it is closed.</source>
        <translation>При закрытии Firefox забывает расширение, добавленное таким способом.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Confirmation</source>
        <translation>Подтверждение</translation>
    </message>
    <message>
        <source>Do you want to delete the item forever?
It can not be restored.</source>
        <translation>Удалить запись навсегда?
Восстановить её будет нельзя.</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Удалить навсегда</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Do you want to remove item?</source>
        <translation>Удалить запись?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Do you want to delete all items in the trash forever?
They can not be restored.</source>
        <translation>Удалить все записи из корзины навсегда?
Восстановить их будет нельзя.</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (копия)</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to delete %n items forever?
They can not be restored.</source>
        <translation>
            <numerusform>Удалить %n запись навсегда?
Восстановить будет нельзя.</numerusform>
            <numerusform>Удалить %n записи навсегда?
Восстановить их будет нельзя.</numerusform>
            <numerusform>Удалить %n записей навсегда?
Восстановить их будет нельзя.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n items?</source>
        <translation>
            <numerusform>Удалить %n запись?</numerusform>
            <numerusform>Удалить %n записи?</numerusform>
            <numerusform>Удалить %n записей?</numerusform>
        </translation>
    </message>
    <message>
        <source>Their attachment is deleted as well.</source>
        <translation>Вложение также будет удалено.</translation>
    </message>
    <message numerus="yes">
        <source>Their %n attachments are deleted as well.</source>
        <translation>
            <numerusform>Также будет удалено %n вложение.</numerusform>
            <numerusform>Также будут удалены %n вложения.</numerusform>
            <numerusform>Также будет удалено %n вложений.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemChanges</name>
    <message>
        <source>Can&apos;t delete now.</source>
        <translation>Сейчас удалить нельзя.</translation>
    </message>
    <message>
        <source>The password of the safe is being changed. Delete the items when that is done.</source>
        <translation>Пароль сейфа сейчас меняется. Удалите записи, когда это закончится.</translation>
    </message>
    <message>
        <source>Can&apos;t delete.</source>
        <translation>Не удалось удалить.</translation>
    </message>
    <message>
        <source>The items are still there. Check that the folder of the safe can be written to:
%1</source>
        <translation>Записи остались на месте. Проверьте, что папка сейфа доступна для записи:
%1</translation>
    </message>
</context>
<context>
    <name>ItemFields</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Заметка</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>When logging in</source>
        <translation>При входе</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Номер карты</translation>
    </message>
    <message>
        <source>Card type</source>
        <translation>Тип карты</translation>
    </message>
    <message>
        <source>Card holder</source>
        <translation>Держатель карты</translation>
    </message>
    <message>
        <source>Expires</source>
        <translation>Срок действия</translation>
    </message>
    <message>
        <source>Security code</source>
        <translation>Код безопасности</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Банк</translation>
    </message>
    <message>
        <source>Bank phone</source>
        <translation>Телефон банка</translation>
    </message>
    <message>
        <source>Bank web site</source>
        <translation>Сайт банка</translation>
    </message>
    <message>
        <source>Account type</source>
        <translation>Тип счёта</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Владелец счёта</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Номер счёта</translation>
    </message>
    <message>
        <source>Routing number</source>
        <translation>Код банка</translation>
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
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Фамилия</translation>
    </message>
    <message>
        <source>Birth date</source>
        <translation>Дата рождения</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Пол</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Address line 1</source>
        <translation>Адрес, строка 1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Город</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Индекс</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Компания</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Должность</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Регион</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Адрес, строка 2</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Мобильный телефон</translation>
    </message>
    <message>
        <source>Business phone</source>
        <translation>Рабочий телефон</translation>
    </message>
    <message>
        <source>Skype</source>
        <translation>Skype</translation>
    </message>
    <message>
        <source>Passport number</source>
        <translation>Номер паспорта</translation>
    </message>
    <message>
        <source>Passport type</source>
        <translation>Тип паспорта</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Полное имя</translation>
    </message>
    <message>
        <source>Birth place</source>
        <translation>Место рождения</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Гражданство</translation>
    </message>
    <message>
        <source>Authority</source>
        <translation>Орган выдачи</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Дата выдачи</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Номер прав</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Рост</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Особые отметки</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Ключ лицензии</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Заполнить и войти</translation>
    </message>
    <message>
        <source>Only fill</source>
        <translation>Только заполнить</translation>
    </message>
    <message>
        <source>Use application setting (fill and submit)</source>
        <translation>Как в настройках (заполнить и войти)</translation>
    </message>
    <message>
        <source>Use application setting (only fill)</source>
        <translation>Как в настройках (только заполнить)</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Мужской</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Женский</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>Login</source>
        <translation>Логин</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Логины</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Банковская карта</translation>
    </message>
    <message>
        <source>Credit cards</source>
        <translation>Карты</translation>
    </message>
    <message>
        <source>Bank account</source>
        <translation>Банковский счёт</translation>
    </message>
    <message>
        <source>Bank accounts</source>
        <translation>Счета</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Личные данные</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Личные данные</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Паспорт</translation>
    </message>
    <message>
        <source>Passports</source>
        <translation>Паспорта</translation>
    </message>
    <message>
        <source>Social security</source>
        <translation>Соцстрахование</translation>
    </message>
    <message>
        <source>Driver licence</source>
        <translation>Водительские права</translation>
    </message>
    <message>
        <source>Driver licences</source>
        <translation>Вод. права</translation>
    </message>
    <message>
        <source>Secure note</source>
        <translation>Защищённая заметка</translation>
    </message>
    <message>
        <source>Secure notes</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <source>FTP account</source>
        <translation>Доступ к FTP</translation>
    </message>
    <message>
        <source>FTP accounts</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Software licence</source>
        <translation>Лицензия на программу</translation>
    </message>
    <message>
        <source>Software licences</source>
        <translation>Лицензии</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Вложение</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Вложения</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Все записи</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Частые</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 запись</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n запись</numerusform>
            <numerusform>%n записи</numerusform>
            <numerusform>%n записей</numerusform>
        </translation>
    </message>
    <message>
        <source>New login</source>
        <translation>Новый логин</translation>
    </message>
    <message>
        <source>New credit card</source>
        <translation>Новая карта</translation>
    </message>
    <message>
        <source>New bank account</source>
        <translation>Новый счёт</translation>
    </message>
    <message>
        <source>New identity</source>
        <translation>Новые личные данные</translation>
    </message>
    <message>
        <source>New passport</source>
        <translation>Новый паспорт</translation>
    </message>
    <message>
        <source>New social security number</source>
        <translation>Новый номер соцстрахования</translation>
    </message>
    <message>
        <source>New driver licence</source>
        <translation>Новые водительские права</translation>
    </message>
    <message>
        <source>New secure note</source>
        <translation>Новая заметка</translation>
    </message>
    <message>
        <source>New FTP account</source>
        <translation>Новый доступ к FTP</translation>
    </message>
    <message>
        <source>New software licence</source>
        <translation>Новая лицензия</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Новое вложение</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Новая запись</translation>
    </message>
    <message>
        <source>Copy password</source>
        <translation>Копировать пароль</translation>
    </message>
    <message>
        <source>Copy card number</source>
        <translation>Копировать номер карты</translation>
    </message>
    <message>
        <source>Copy account number</source>
        <translation>Копировать номер счёта</translation>
    </message>
    <message>
        <source>Copy email address</source>
        <translation>Копировать адрес эл. почты</translation>
    </message>
    <message>
        <source>Copy passport number</source>
        <translation>Копировать номер паспорта</translation>
    </message>
    <message>
        <source>Copy number</source>
        <translation>Копировать номер</translation>
    </message>
    <message>
        <source>Copy licence number</source>
        <translation>Копировать номер прав</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Копировать текст</translation>
    </message>
    <message>
        <source>Copy licence key</source>
        <translation>Копировать ключ лицензии</translation>
    </message>
    <message>
        <source>Expiring</source>
        <translation>Истекают</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Fill in</source>
        <translation>Заполнить</translation>
    </message>
</context>
<context>
    <name>ItemListPane</name>
    <message>
        <source>Mark an item with the star, and it appears here.</source>
        <translation>Отметьте запись звёздочкой, и она появится здесь.</translation>
    </message>
    <message>
        <source>Items appear here once you have logged in with them.</source>
        <translation>Записи появляются здесь после входа с ними.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Ctrl F</source>
        <translation>Ctrl F</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>Поиск: %1</translation>
    </message>
    <message>
        <source>No items found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Try fewer words, or press Esc to see all items.</source>
        <translation>Сократите запрос или нажмите Esc, чтобы увидеть все записи.</translation>
    </message>
    <message>
        <source>No items in this category</source>
        <translation>В этой категории нет записей</translation>
    </message>
    <message>
        <source>What you remove stays here until you delete it forever.</source>
        <translation>Удалённое хранится здесь, пока не будет удалено навсегда.</translation>
    </message>
    <message>
        <source>Your safe is empty</source>
        <translation>Сейф пуст</translation>
    </message>
    <message>
        <source>Keep your user names and passwords here.</source>
        <translation>Храните здесь имена пользователей и пароли.</translation>
    </message>
    <message>
        <source>Add your first login</source>
        <translation>Добавить первый логин</translation>
    </message>
    <message>
        <source>Press Ctrl+N to add the first one.</source>
        <translation>Нажмите Ctrl+N, чтобы добавить первую запись.</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Новая запись</translation>
    </message>
    <message>
        <source>New item (Ctrl+N)</source>
        <translation>Новая запись (Ctrl+N)</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Перенести пароли…</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Open address</source>
        <translation>Открыть адрес</translation>
    </message>
    <message>
        <source>Copy user name</source>
        <translation>Копировать имя пользователя</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Delete forever…</source>
        <translation>Удалить навсегда…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>Favourite</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Log in (Ctrl+Return)</source>
        <translation>Войти (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Modified %1 · created %2</source>
        <translation>Изменено %1 · создано %2</translation>
    </message>
    <message>
        <source>Used once</source>
        <translation>Использовано 1 раз</translation>
    </message>
    <message numerus="yes">
        <source>Used %n times</source>
        <translation>
            <numerusform>Использовано %n раз</numerusform>
            <numerusform>Использовано %n раза</numerusform>
            <numerusform>Использовано %n раз</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Edit (F2)</source>
        <translation>Изменить (F2)</translation>
    </message>
    <message>
        <source>Fill into the open page (Ctrl+Return)</source>
        <translation>Заполнить на открытой странице (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>No items selected</source>
        <translation>Записи не выбраны</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save (Ctrl+S)</source>
        <translation>Сохранить (Ctrl+S)</translation>
    </message>
    <message>
        <source>Can&apos;t save changes.</source>
        <translation>Не удалось сохранить изменения.</translation>
    </message>
    <message>
        <source>There are empty required values.
Fill and try again.</source>
        <translation>Есть пустые обязательные поля.
Заполните их и повторите попытку.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>The object has been modified</source>
        <translation>Запись изменена</translation>
    </message>
    <message>
        <source>There are empty required fields. What would you like to do?</source>
        <translation>Есть пустые обязательные поля. Что сделать?</translation>
    </message>
    <message>
        <source>You have not saved changes yet</source>
        <translation>Изменения ещё не сохранены</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Продолжить правку</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Удалить навсегда</translation>
    </message>
    <message>
        <source>Choose an item on the left, or press Ctrl+N to add one.</source>
        <translation>Выберите запись слева или нажмите Ctrl+N, чтобы добавить новую.</translation>
    </message>
    <message>
        <source>There are values that are no date or no number.
Correct them and try again.</source>
        <translation>Некоторые значения — не дата или не число.
Исправьте их и повторите попытку.</translation>
    </message>
    <message>
        <source>New attachment</source>
        <translation>Новое вложение</translation>
    </message>
    <message>
        <source>Please choose a file</source>
        <translation>Выберите файл</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>LineInput</name>
    <message>
        <source>Open in browser</source>
        <translation>Открыть в браузере</translation>
    </message>
    <message>
        <source>Open in browser (Alt+Return)</source>
        <translation>Открыть в браузере (Alt+Enter)</translation>
    </message>
    <message>
        <source>e.g. %1</source>
        <translation>напр. %1</translation>
    </message>
    <message>
        <source>MM / YYYY</source>
        <translation>ММ / ГГГГ</translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation>Выбрать дату</translation>
    </message>
    <message>
        <source>Choose a date (Alt+Down)</source>
        <translation>Выбрать дату (Alt+Вниз)</translation>
    </message>
</context>
<context>
    <name>LockReason</name>
    <message numerus="yes">
        <source>Locked after %n minutes without input</source>
        <translation>
            <numerusform>Заблокировано после %n минуты бездействия</numerusform>
            <numerusform>Заблокировано после %n минут бездействия</numerusform>
            <numerusform>Заблокировано после %n минут бездействия</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoginSaving</name>
    <message>
        <source>%1 (former password, until %2)</source>
        <translation>%1 (прежний пароль, до %2)</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Moved to trash</source>
        <translation>Перемещено в корзину</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to trash</source>
        <translation>
            <numerusform>%n запись перемещена в корзину</numerusform>
            <numerusform>%n записи перемещены в корзину</numerusform>
            <numerusform>%n записей перемещено в корзину</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>“%1” was deleted on another computer.</source>
        <translation>Запись «%1» удалена на другом компьютере.</translation>
    </message>
    <message>
        <source>What you have typed is kept. Save it as a new item, or discard it.</source>
        <translation>Введённое не потеряно. Сохраните его как новую запись или отбросьте.</translation>
    </message>
</context>
<context>
    <name>MasterPasswordPage</name>
    <message>
        <source>Safe</source>
        <translation>Сейф</translation>
    </message>
    <message>
        <source>Click to select safe</source>
        <translation>Выбрать сейф</translation>
    </message>
    <message>
        <source>Enter Password</source>
        <translation>Введите пароль</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Reading items</source>
        <translation>Чтение записей</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Create new...</source>
        <translation>Создать новый...</translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation>%1 (недоступен)</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Welcome back</source>
        <translation>С возвращением</translation>
    </message>
    <message>
        <source>You have not Safe yet
Create one?</source>
        <translation>У Вас ещё нет сейфа.
Создать?</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Подсказка: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Unlocking: %1 of %2 items</source>
        <translation>Открыто записей: %1 из %2</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Открывается…</translation>
    </message>
    <message>
        <source>Restore from a backup…</source>
        <translation>Восстановить из копии…</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Сейфы…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Всё равно открыть</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (поиск…)</translation>
    </message>
    <message>
        <source>Saving your last changes first…</source>
        <translation>Сначала сохраняются Ваши последние изменения…</translation>
    </message>
    <message>
        <source>Locked. Saving your last changes…</source>
        <translation>Заблокировано. Сохраняются Ваши последние изменения…</translation>
    </message>
</context>
<context>
    <name>MonthPopup</name>
    <message>
        <source>Previous year</source>
        <translation>Предыдущий год</translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Следующий год</translation>
    </message>
</context>
<context>
    <name>MoveInColumns</name>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The columns of “%1” are not known. Say what each one holds.</source>
        <translation>Столбцы файла «%1» неизвестны. Укажите, что в каждом из них.</translation>
    </message>
    <message>
        <source>Keep it in the note</source>
        <translation>Сохранить в заметке</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Заметка</translation>
    </message>
</context>
<context>
    <name>MoveInDialog</name>
    <message>
        <source>Choose the exported file</source>
        <translation>Выберите экспортированный файл</translation>
    </message>
    <message>
        <source>Exports of passwords (%1)</source>
        <translation>Экспортированные пароли (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Все файлы (%1)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Bring passwords over</source>
        <translation>Перенос паролей</translation>
    </message>
    <message>
        <source>Drop the exported file here</source>
        <translation>Перетащите сюда экспортированный файл</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Скопировано.</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Чтение «%1»…</translation>
    </message>
    <message>
        <source>Added %1 of %2…</source>
        <translation>Добавлено %1 из %2…</translation>
    </message>
    <message>
        <source>What came in.txt</source>
        <translation>Что перенесено.txt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Сохранено.</translation>
    </message>
    <message>
        <source>The file cannot be written. Choose another folder.</source>
        <translation>Файл не удалось записать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message>
        <source>The file does not go to the bin: it is gone at once. Nobody can promise that nothing of it stays behind: SSDs, backups and folders that are synchronised may keep what was deleted for a while.</source>
        <translation>Файл не попадёт в корзину: он исчезнет сразу. Никто не может обещать, что от него ничего не останется: SSD, резервные копии и синхронизируемые папки могут какое-то время хранить удалённое.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The file “%1” is deleted. If you made other copies of it, delete them, too.</source>
        <translation>Файл «%1» удалён. Если Вы делали другие его копии, удалите и их.</translation>
    </message>
    <message>
        <source>The file cannot be deleted. Close the program that has it open, then try again:
%1</source>
        <translation>Файл не удалось удалить. Закройте программу, в которой он открыт, и повторите попытку:
%1</translation>
    </message>
</context>
<context>
    <name>MoveInEnd</name>
    <message>
        <source>What did not come in</source>
        <translation>Что не перенесено</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Удалить файл</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Копировать отчёт</translation>
    </message>
    <message>
        <source>Save report…</source>
        <translation>Сохранить отчёт…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Look at what did not come in, then delete the file.</source>
        <translation>В файле «%1» по-прежнему лежат Ваши пароли, доступные каждому. Посмотрите, что не перенесено, и удалите файл.</translation>
    </message>
    <message>
        <source>The file “%1” still holds your passwords for everyone to read. Delete it now.</source>
        <translation>В файле «%1» по-прежнему лежат Ваши пароли, доступные каждому. Удалите его сейчас.</translation>
    </message>
</context>
<context>
    <name>MoveInModel</name>
    <message>
        <source>chosen</source>
        <translation>выбрано</translation>
    </message>
    <message>
        <source>not chosen</source>
        <translation>не выбрано</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Станет</translation>
    </message>
</context>
<context>
    <name>MoveInPage</name>
    <message>
        <source>Bring passwords over…</source>
        <translation>Перенести пароли…</translation>
    </message>
    <message>
        <source>Chrome, Edge, Firefox, Safari, Bitwarden and KeePassXC write their passwords into a file, which this program reads. You see everything before it comes in, and how to make the file.</source>
        <translation>Chrome, Edge, Firefox, Safari, Bitwarden и KeePassXC записывают свои пароли в файл, который читает эта программа. До переноса видно всё, что в нём есть, и как создать файл.</translation>
    </message>
    <message>
        <source>Open a safe first: the passwords are kept in it.</source>
        <translation>Сначала откройте сейф: пароли хранятся в нём.</translation>
    </message>
</context>
<context>
    <name>MoveInPreview</name>
    <message>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Снять выбор</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n запись</numerusform>
            <numerusform>%n записи</numerusform>
            <numerusform>%n записей</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n строка</numerusform>
            <numerusform>%n строки</numerusform>
            <numerusform>%n строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n logins will be added</source>
        <translation>
            <numerusform>%n логин будет добавлен</numerusform>
            <numerusform>%n логина будут добавлены</numerusform>
            <numerusform>%n логинов будет добавлено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items will be added</source>
        <translation>
            <numerusform>%n запись будет добавлена</numerusform>
            <numerusform>%n записи будут добавлены</numerusform>
            <numerusform>%n записей будет добавлено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n are already there</source>
        <translation>
            <numerusform>%n уже есть</numerusform>
            <numerusform>%n уже есть</numerusform>
            <numerusform>%n уже есть</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable</source>
        <translation>
            <numerusform>%n не читается</numerusform>
            <numerusform>%n не читаются</numerusform>
            <numerusform>%n не читаются</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n logins</source>
        <translation>
            <numerusform>Добавить %n логин</numerusform>
            <numerusform>Добавить %n логина</numerusform>
            <numerusform>Добавить %n логинов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n items</source>
        <translation>
            <numerusform>Добавить %n запись</numerusform>
            <numerusform>Добавить %n записи</numerusform>
            <numerusform>Добавить %n записей</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveInProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Отмена…</translation>
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
        <translation>Не записано на диск</translation>
    </message>
    <message>
        <source>Not added before the safe was locked</source>
        <translation>Не добавлено до блокировки сейфа</translation>
    </message>
    <message>
        <source>Not added before you cancelled</source>
        <translation>Не добавлено до отмены</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Не выбрано</translation>
    </message>
    <message>
        <source>Nothing came in</source>
        <translation>Ничего не перенесено</translation>
    </message>
    <message numerus="yes">
        <source>%n logins came in</source>
        <translation>
            <numerusform>Перенесён %n логин</numerusform>
            <numerusform>Перенесены %n логина</numerusform>
            <numerusform>Перенесено %n логинов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items came in</source>
        <translation>
            <numerusform>Перенесена %n запись</numerusform>
            <numerusform>Перенесены %n записи</numerusform>
            <numerusform>Перенесено %n записей</numerusform>
        </translation>
    </message>
    <message>
        <source>You cancelled. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Вы отменили перенос. Перенесённое до этого сохранено. Для остального выберите файл ещё раз: то, что уже есть, будет распознано.</translation>
    </message>
    <message>
        <source>The safe could not be written to. Check the free space and the permissions, then choose the file again: what is there is recognised.</source>
        <translation>Не удалось записать в сейф. Проверьте свободное место и права доступа и выберите файл ещё раз: то, что уже есть, будет распознано.</translation>
    </message>
    <message>
        <source>The safe was locked meanwhile. What came in before is saved. Choose the file again for the others: what is there is recognised.</source>
        <translation>Тем временем сейф был заблокирован. Перенесённое до этого сохранено. Для остального выберите файл ещё раз: то, что уже есть, будет распознано.</translation>
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
        <translation>Как создать файл</translation>
    </message>
    <message>
        <source>Drop the exported file here, or choose it. Nothing is added before you have seen what will come in.</source>
        <translation>Перетащите сюда экспортированный файл или выберите его. Ничего не добавится, пока Вы не увидите, что будет перенесено.</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Выбрать файл…</translation>
    </message>
</context>
<context>
    <name>MoveInTable</name>
    <message>
        <source>What will come in</source>
        <translation>Что будет перенесено</translation>
    </message>
</context>
<context>
    <name>MoveInTexts</name>
    <message>
        <source>The file is empty. Export the passwords again, and choose the new file.</source>
        <translation>Файл пуст. Экспортируйте пароли ещё раз и выберите новый файл.</translation>
    </message>
    <message>
        <source>The file holds no text that could be read. Export the passwords as CSV or JSON, and choose that file.</source>
        <translation>В файле нет текста, который можно прочитать. Экспортируйте пароли в CSV или JSON и выберите этот файл.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a text. Export the passwords again, and choose the new file.</source>
        <translation>Файл обрывается посреди текста. Экспортируйте пароли ещё раз и выберите новый файл.</translation>
    </message>
    <message>
        <source>The file is encrypted. Export again as JSON or CSV without encryption, and delete that file afterwards.</source>
        <translation>Файл зашифрован. Экспортируйте ещё раз в JSON или CSV без шифрования, а потом удалите тот файл.</translation>
    </message>
    <message>
        <source>This is no export that the program knows. It reads the JSON files of Bitwarden and its own, and CSV files of browsers and other programs.</source>
        <translation>Программа не знает такого экспорта. Она читает файлы JSON от Bitwarden и свои, а также файлы CSV от браузеров и других программ.</translation>
    </message>
    <message>
        <source>The names of the columns are not known. Say what each column holds.</source>
        <translation>Названия столбцов неизвестны. Укажите, что в каждом столбце.</translation>
    </message>
    <message>
        <source>Save the file where you find it again.</source>
        <translation>Сохраните файл там, где его легко найти.</translation>
    </message>
    <message>
        <source>Type %1 into the address bar.</source>
        <translation>Введите %1 в адресную строку.</translation>
    </message>
    <message>
        <source>Beside “Export passwords” press “Download file”.</source>
        <translation>Рядом с «Экспортировать пароли» нажмите «Скачать файл».</translation>
    </message>
    <message>
        <source>Press the three dots above the list and choose “Export passwords”.</source>
        <translation>Нажмите три точки над списком и выберите «Экспорт паролей».</translation>
    </message>
    <message>
        <source>Press the three dots in the corner and choose “Export passwords…”.</source>
        <translation>Нажмите три точки в углу и выберите «Экспорт паролей…».</translation>
    </message>
    <message>
        <source>On the Mac open the program “Passwords”, or Safari on older systems.</source>
        <translation>На Mac откройте программу «Пароли» или, в старых системах, Safari.</translation>
    </message>
    <message>
        <source>In the menu “File” choose to export all passwords to a file.</source>
        <translation>В меню «Файл» выберите экспорт всех паролей в файл.</translation>
    </message>
    <message>
        <source>Bring the file to this computer.</source>
        <translation>Перенесите файл на этот компьютер.</translation>
    </message>
    <message>
        <source>Choose “Export vault”: under “Tools” in the web vault, in the menu “File” of the program.</source>
        <translation>Выберите «Экспорт хранилища»: в веб-хранилище — в разделе «Инструменты», в программе — в меню «Файл».</translation>
    </message>
    <message>
        <source>Choose “.json”, which holds cards and identities too, and no encryption.</source>
        <translation>Выберите «.json» без шифрования: туда входят и карты, и личные данные.</translation>
    </message>
    <message>
        <source>Open the database.</source>
        <translation>Откройте базу данных.</translation>
    </message>
    <message>
        <source>In the menu “Database” choose “Export”, then “CSV file…”.</source>
        <translation>В меню «База данных» выберите «Экспорт», затем «Файл CSV…».</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Другой сейф</translation>
    </message>
    <message>
        <source>Open the other safe in this program.</source>
        <translation>Откройте другой сейф в этой программе.</translation>
    </message>
    <message>
        <source>In the menu of the safe choose “Export items…”, then JSON.</source>
        <translation>В меню сейфа выберите «Экспорт записей…», затем JSON.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Другая программа</translation>
    </message>
    <message>
        <source>Export the passwords as CSV, with the names of the columns in the first row.</source>
        <translation>Экспортируйте пароли в CSV с названиями столбцов в первой строке.</translation>
    </message>
    <message>
        <source>Choose the file here. You are asked what each column holds, if that is not known.</source>
        <translation>Выберите файл здесь. Если содержание столбцов неизвестно, программа спросит о нём.</translation>
    </message>
    <message>
        <source>recognised as an export of a browser</source>
        <translation>распознан экспорт из браузера</translation>
    </message>
    <message>
        <source>read by the columns that you chose</source>
        <translation>прочитан по выбранным столбцам</translation>
    </message>
    <message>
        <source>recognised as an export of %1</source>
        <translation>распознан экспорт из %1</translation>
    </message>
    <message>
        <source>There are no rows below the names of the columns. Export the passwords again, and choose the new file.</source>
        <translation>Под названиями столбцов нет строк. Экспортируйте пароли ещё раз и выберите новый файл.</translation>
    </message>
    <message>
        <source>The file is no longer there. Choose it again.</source>
        <translation>Файла больше нет на месте. Выберите его ещё раз.</translation>
    </message>
    <message>
        <source>This is no file. Choose the exported file itself.</source>
        <translation>Это не файл. Выберите сам экспортированный файл.</translation>
    </message>
    <message>
        <source>The file cannot be read. Close the program that has it open, or copy it to another folder.</source>
        <translation>Файл не читается. Закройте программу, в которой он открыт, или скопируйте его в другую папку.</translation>
    </message>
    <message>
        <source>The file is larger than %1, which no export of passwords is. Check that it is the right one.</source>
        <translation>Файл больше %1, а экспорт паролей таким не бывает. Проверьте, тот ли это файл.</translation>
    </message>
    <message>
        <source>Not a web address</source>
        <translation>Не адрес сайта</translation>
    </message>
    <message>
        <source>Nothing in it</source>
        <translation>Пусто</translation>
    </message>
    <message>
        <source>Unknown kind</source>
        <translation>Неизвестный тип</translation>
    </message>
    <message>
        <source>Wrong number of columns</source>
        <translation>Неверное число столбцов</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Уже есть</translation>
    </message>
    <message>
        <source>Other password</source>
        <translation>Другой пароль</translation>
    </message>
    <message>
        <source>Other note</source>
        <translation>Другая заметка</translation>
    </message>
    <message>
        <source>Without address</source>
        <translation>Без адреса</translation>
    </message>
    <message>
        <source>It is in the safe, or further up in the file.</source>
        <translation>Уже есть в сейфе или выше в файле.</translation>
    </message>
    <message>
        <source>There is a login of the same site and user name with another password. Both will be there.</source>
        <translation>Есть логин с тем же сайтом и именем пользователя, но другим паролем. Останутся оба.</translation>
    </message>
    <message>
        <source>There is such an item with another note. Both will be there.</source>
        <translation>Есть такая же запись с другой заметкой. Останутся обе.</translation>
    </message>
    <message>
        <source>Its address belongs to an app or a file, and goes to the note.</source>
        <translation>Адрес относится к приложению или файлу и попадёт в заметку.</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Запись %1</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Строка %1</translation>
    </message>
    <message>
        <source>(entry %1)</source>
        <translation>(запись %1)</translation>
    </message>
    <message>
        <source>(row %1)</source>
        <translation>(строка %1)</translation>
    </message>
</context>
<context>
    <name>NarrowLayout</name>
    <message>
        <source>Back to the list (Esc)</source>
        <translation>Назад к списку (Esc)</translation>
    </message>
</context>
<context>
    <name>NewItemMenu</name>
    <message>
        <source>New item</source>
        <translation>Новая запись</translation>
    </message>
</context>
<context>
    <name>NewSafePage</name>
    <message>
        <source>The hint is shown to everyone who opens this window. Let it remind you of the password, and nobody else.</source>
        <translation>Подсказку видит каждый, кто откроет это окно. Пусть она напоминает пароль Вам, и никому другому.</translation>
    </message>
    <message>
        <source>Your safe “%1” is open.</source>
        <translation>Сейф «%1» открыт.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Do you have a safe already?</source>
        <translation>У Вас уже есть сейф?</translation>
    </message>
    <message>
        <source>Open its folder…</source>
        <translation>Открыть его папку…</translation>
    </message>
    <message>
        <source>Import an archive…</source>
        <translation>Импорт архива…</translation>
    </message>
    <message>
        <source>“%1” is there. Unlock it with its master password after these steps.</source>
        <translation>Сейф «%1» на месте. Откройте его мастер-паролем после этих шагов.</translation>
    </message>
</context>
<context>
    <name>NewVersionDialog</name>
    <message>
        <source>What is new</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>New version</source>
        <translation>Новая версия</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>Вышла версия %1</translation>
    </message>
    <message>
        <source>You have version %1. Your safes and settings stay as they are when you install the new one.</source>
        <translation>У Вас версия %1. При установке новой Ваши сейфы и настройки останутся как есть.</translation>
    </message>
    <message>
        <source>The page is on %1 and opens in your browser.</source>
        <translation>Страница находится на %1 и откроется в Вашем браузере.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Open the download page</source>
        <translation>Открыть страницу загрузки</translation>
    </message>
</context>
<context>
    <name>NoticeBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Скрыть</translation>
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
        <translation>ОК</translation>
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
        <translation>Версия %1

Ctrl+N добавляет логин, Ctrl+F ищет, Ctrl+E изменяет, Ctrl+S сохраняет.
Ctrl+B копирует имя пользователя, Ctrl+Shift+C — пароль.
Ctrl+Enter выполняет вход, Ctrl+L блокирует сейф, Ctrl+Q завершает программу.

Шрифт — Inter (лицензия SIL Open Font License), значки — Tabler (лицензия MIT).</translation>
    </message>
    <message>
        <source>Choose the folder of the safe</source>
        <translation>Выберите папку сейфа</translation>
    </message>
</context>
<context>
    <name>PasswordChangeDesk</name>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Смена пароля</translation>
    </message>
    <message>
        <source>Writing “%1” anew under its new password. You can go on working meanwhile.</source>
        <translation>Сейф «%1» перезаписывается под новый пароль. Тем временем можно продолжать работу.</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>View text under dots</source>
        <translation>Показать скрытый текст</translation>
    </message>
    <message>
        <source>View text under dots (Ctrl+R)</source>
        <translation>Показать скрытый текст (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>PasswordGeneratorDialog</name>
    <message>
        <source>Password Generator</source>
        <translation>Генератор паролей</translation>
    </message>
</context>
<context>
    <name>PasswordStrength</name>
    <message>
        <source>Strong</source>
        <translation>Отличный</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Хороший</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Слабый</translation>
    </message>
    <message>
        <source>Terrible</source>
        <translation>Ужасный</translation>
    </message>
</context>
<context>
    <name>PasswordWeakness</name>
    <message>
        <source>a name</source>
        <translation>имя</translation>
    </message>
    <message>
        <source>a word from a list</source>
        <translation>слово из списка</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>дата</translation>
    </message>
    <message>
        <source>keys side by side</source>
        <translation>соседние клавиши</translation>
    </message>
    <message>
        <source>a sequence</source>
        <translation>последовательность</translation>
    </message>
    <message>
        <source>a repetition</source>
        <translation>повторение</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>цифра</translation>
    </message>
    <message>
        <source>digits</source>
        <translation>цифры</translation>
    </message>
    <message>
        <source>a few characters</source>
        <translation>несколько символов</translation>
    </message>
    <message>
        <source>too few characters</source>
        <translation>слишком мало символов</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
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
        <translation>Код страны</translation>
    </message>
    <message>
        <source>%1: country code</source>
        <translation>%1: код страны</translation>
    </message>
</context>
<context>
    <name>PluginVersion</name>
    <message>
        <source>Invalid plugin version for %1 extension: %2</source>
        <translation>Неподходящая версия расширения для %1: %2</translation>
    </message>
</context>
<context>
    <name>PluginsPage</name>
    <message>
        <source>No browser was found that the extension is made for: Chrome, Chromium or Firefox.</source>
        <translation>Не найден ни один браузер, для которого есть расширение: Chrome, Chromium или Firefox.</translation>
    </message>
    <message>
        <source>Looking for browsers…</source>
        <translation>Поиск браузеров…</translation>
    </message>
    <message>
        <source>A browser is connected.</source>
        <translation>Браузер подключён.</translation>
    </message>
    <message>
        <source>No browser is connected yet. It shows here when it is.</source>
        <translation>Браузер ещё не подключён. Подключение будет показано здесь.</translation>
    </message>
    <message>
        <source>Opens your web links</source>
        <translation>Открывает Ваши веб-ссылки</translation>
    </message>
    <message>
        <source>Installed %1</source>
        <translation>Установлено %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>%1, connected</source>
        <translation>%1, подключено</translation>
    </message>
    <message>
        <source>Install Plugin</source>
        <translation>Установить расширение</translation>
    </message>
    <message>
        <source>Install Plugin: %1</source>
        <translation>Установить расширение: %1</translation>
    </message>
</context>
<context>
    <name>ProgramShortcuts</name>
    <message>
        <source>copy</source>
        <translation>копировать</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>вырезать</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>вставить</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>отменить</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>вернуть</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>выделить всё</translation>
    </message>
    <message>
        <source>a command of this program</source>
        <translation>команда этой программы</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Отмена…</translation>
    </message>
</context>
<context>
    <name>QuickAccessWindow</name>
    <message>
        <source>Quick access</source>
        <translation>Быстрый доступ</translation>
    </message>
    <message>
        <source>No safe yet</source>
        <translation>Сейфов пока нет</translation>
    </message>
    <message>
        <source>Create one in the main window; what it keeps is found here.</source>
        <translation>Создайте сейф в главном окне; его содержимое Вы найдёте здесь.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Открыть главное окно</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Генератор паролей</translation>
    </message>
    <message>
        <source>No browser with the extension is connected</source>
        <translation>Нет подключённого браузера с расширением</translation>
    </message>
</context>
<context>
    <name>QuickBar</name>
    <message>
        <source>Logins</source>
        <translation>Логины</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Карты</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Генератор</translation>
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
        <translation>Для %1</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Частые</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Карты</translation>
    </message>
    <message>
        <source>Identities</source>
        <translation>Личные данные</translation>
    </message>
    <message>
        <source>Logins</source>
        <translation>Логины</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Заполнить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>QuickList</name>
    <message>
        <source>Search logins, cards, identities</source>
        <translation>Поиск логинов, карт, личных данных</translation>
    </message>
    <message>
        <source>The arrow keys choose an item, Enter fills it. Ctrl+C copies its password, Ctrl+B its user name.</source>
        <translation>Стрелки выбирают запись, Enter заполняет её. Ctrl+C копирует её пароль, Ctrl+B — имя пользователя.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Try another word, or fewer letters.</source>
        <translation>Попробуйте другое слово или меньше букв.</translation>
    </message>
    <message>
        <source>No logins yet</source>
        <translation>Логинов пока нет</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Карт пока нет</translation>
    </message>
    <message>
        <source>No identities yet</source>
        <translation>Личных данных пока нет</translation>
    </message>
    <message>
        <source>What you add in the main window is found here.</source>
        <translation>Здесь Вы найдёте то, что добавите в главном окне.</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>adds an item</source>
        <translation>добавляет запись</translation>
    </message>
    <message>
        <source>searches</source>
        <translation>запускает поиск</translation>
    </message>
    <message>
        <source>opens the page of a login and fills it in</source>
        <translation>открывает страницу логина и заполняет её</translation>
    </message>
    <message>
        <source>locks the safe</source>
        <translation>блокирует сейф</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>today</source>
        <translation>сегодня</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>вчера</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 в %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Restore from a backup</source>
        <translation>Восстановление из копии</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Другая папка…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Резервные копии</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Чтение копий…</translation>
    </message>
    <message>
        <source>The folder is not there</source>
        <translation>Папка недоступна</translation>
    </message>
    <message>
        <source>Connect its drive, or choose the folder that your backups lie in.</source>
        <translation>Подключите её диск или выберите папку, где лежат Ваши копии.</translation>
    </message>
    <message>
        <source>No backups here</source>
        <translation>Здесь нет копий</translation>
    </message>
    <message>
        <source>Choose the folder that your backups lie in, such as one on another disk.</source>
        <translation>Выберите папку, где лежат Ваши копии, например на другом диске.</translation>
    </message>
    <message>
        <source>It comes back as a new safe with the password of that time.</source>
        <translation>Из копии получится новый сейф с паролем того времени.</translation>
    </message>
</context>
<context>
    <name>SafeDesk</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Open the folder of a safe</source>
        <translation>Открыть папку сейфа</translation>
    </message>
    <message>
        <source>No safe there</source>
        <translation>Здесь нет сейфа</translation>
    </message>
    <message>
        <source>There is no safe in this folder. The folder of a safe holds a file “safe.meta”:
%1</source>
        <translation>В этой папке нет сейфа. В папке сейфа есть файл «safe.meta»:
%1</translation>
    </message>
    <message>
        <source>Name of the safe</source>
        <translation>Название сейфа</translation>
    </message>
    <message>
        <source>Can&apos;t rename.</source>
        <translation>Не удалось переименовать.</translation>
    </message>
    <message>
        <source>The safe keeps its name. Check the free space and that you may write to its folder:
%1</source>
        <translation>Название сейфа осталось прежним. Проверьте свободное место и право записи в его папку:
%1</translation>
    </message>
    <message>
        <source>Where is “%1” now?</source>
        <translation>Где теперь «%1»?</translation>
    </message>
    <message>
        <source>Another safe</source>
        <translation>Другой сейф</translation>
    </message>
    <message>
        <source>This folder holds another safe than “%1”. Open it on its own with “Open the folder of a safe”, or choose another folder.</source>
        <translation>В этой папке не «%1», а другой сейф. Откройте его отдельно командой «Открыть папку сейфа» или выберите другую папку.</translation>
    </message>
    <message>
        <source>There is no safe in this folder:
%1</source>
        <translation>В этой папке нет сейфа:
%1</translation>
    </message>
    <message>
        <source>Take “%1” off the list?</source>
        <translation>Убрать «%1» из списка?</translation>
    </message>
    <message>
        <source>Its files stay where they are. “Open the folder of a safe” brings it back:
%1</source>
        <translation>Его файлы останутся на месте. Вернуть его можно командой «Открыть папку сейфа»:
%1</translation>
    </message>
    <message>
        <source>Its folder is not there now. If it comes back, “Open the folder of a safe” finds it:
%1</source>
        <translation>Его папка сейчас недоступна. Когда она появится, её найдёт команда «Открыть папку сейфа»:
%1</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>Убрать из списка</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Delete safe</source>
        <translation>Удаление сейфа</translation>
    </message>
    <message>
        <source>Deleting “%1”…</source>
        <translation>Удаление «%1»…</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is not in its folder any more.</source>
        <translation>Ничего не удалено: сейфа больше нет в его папке.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is being archived, or its password is being changed. Try again when that is done.</source>
        <translation>Ничего не удалено: сейф архивируется, или меняется его пароль. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Nothing was deleted: another program has this safe open. Close it there and try again.</source>
        <translation>Ничего не удалено: сейф открыт в другой программе. Закройте его там и повторите попытку.</translation>
    </message>
    <message>
        <source>Nothing was deleted: the safe is as it was. Check that you may write to its folder and try again.</source>
        <translation>Ничего не удалено: сейф остался прежним. Проверьте право записи в его папку и повторите попытку.</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Показать папку</translation>
    </message>
    <message>
        <source>“%1” is gone, but some of its files could not be removed. They are encrypted, and you can delete them:
%2</source>
        <translation>Сейфа «%1» больше нет, но некоторые его файлы не удалось удалить. Они зашифрованы, и их можно удалить:
%2</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is gone. %n other files were in its folder and are still there:
%2</source>
        <translation>
            <numerusform>Сейфа «%1» больше нет. В его папке остался %n другой файл:
%2</numerusform>
            <numerusform>Сейфа «%1» больше нет. В его папке остались %n других файла:
%2</numerusform>
            <numerusform>Сейфа «%1» больше нет. В его папке осталось %n других файлов:
%2</numerusform>
        </translation>
    </message>
    <message>
        <source>The safe keeps its name while its password is being changed. Try again when that is done.</source>
        <translation>Пока меняется пароль, сейф сохраняет своё название. Попробуйте снова после этого.</translation>
    </message>
</context>
<context>
    <name>SafeItemEditor</name>
    <message>
        <source>Editing “%1” · %2</source>
        <translation>Правка «%1» · %2</translation>
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
        <translation>Ещё поля: %1</translation>
    </message>
    <message>
        <source>More fields: %1…</source>
        <translation>Ещё поля: %1…</translation>
    </message>
</context>
<context>
    <name>SafeLines</name>
    <message>
        <source>Folder not found: it was on a drive that is not connected</source>
        <translation>Папка не найдена: она на неподключённом носителе</translation>
    </message>
    <message>
        <source>Folder not found: it was moved, renamed or deleted</source>
        <translation>Папка не найдена: её переместили, переименовали или удалили</translation>
    </message>
    <message>
        <source>There is no safe in its folder any more, or it can&apos;t be read</source>
        <translation>В папке больше нет сейфа, или он не читается</translation>
    </message>
    <message>
        <source>in the cloud folder</source>
        <translation>в облачной папке</translation>
    </message>
    <message>
        <source>a copy of “%1”</source>
        <translation>копия «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыт</translation>
    </message>
    <message>
        <source>Last opened %1</source>
        <translation>Открывался %1</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>Ещё не открывался</translation>
    </message>
    <message>
        <source>synchronised %1</source>
        <translation>синхронизирован %1</translation>
    </message>
    <message>
        <source>backed up %1</source>
        <translation>копия: %1</translation>
    </message>
    <message>
        <source>no backup yet</source>
        <translation>копии ещё нет</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>поиск…</translation>
    </message>
</context>
<context>
    <name>SafeMenu</name>
    <message>
        <source>Create new...</source>
        <translation>Создать новый...</translation>
    </message>
    <message>
        <source>Safes…</source>
        <translation>Сейфы…</translation>
    </message>
    <message>
        <source>Synchronise now</source>
        <translation>Синхронизировать сейчас</translation>
    </message>
    <message>
        <source>Bring passwords over…</source>
        <translation>Перенести пароли…</translation>
    </message>
    <message>
        <source>Export items…</source>
        <translation>Экспорт записей…</translation>
    </message>
    <message>
        <source>Export safe…</source>
        <translation>Экспорт сейфа…</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Сменить пароль…</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Заблокировать</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (недоступен)</translation>
    </message>
    <message>
        <source>%1 (looking…)</source>
        <translation>%1 (поиск…)</translation>
    </message>
</context>
<context>
    <name>SafeRow</name>
    <message>
        <source>Locate…</source>
        <translation>Найти…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>More about “%1”</source>
        <translation>Другие действия: «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Переименовать…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Показать папку</translation>
    </message>
    <message>
        <source>Remove from list…</source>
        <translation>Убрать из списка…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Удалить…</translation>
    </message>
</context>
<context>
    <name>SafeSwitcher</name>
    <message>
        <source>Switch to another safe</source>
        <translation>Перейти к другому сейфу</translation>
    </message>
    <message>
        <source>Safe: %1</source>
        <translation>Сейф: %1</translation>
    </message>
</context>
<context>
    <name>SafesDialog</name>
    <message>
        <source>Safes</source>
        <translation>Сейфы</translation>
    </message>
    <message>
        <source>New safe</source>
        <translation>Новый сейф</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Make a safe from an archive or a backup</source>
        <translation>Создать сейф из архива или резервной копии</translation>
    </message>
    <message>
        <source>Open the folder of a safe…</source>
        <translation>Открыть папку сейфа…</translation>
    </message>
    <message>
        <source>From cloud folder (%1)</source>
        <translation>Из облачной папки (%1)</translation>
    </message>
    <message>
        <source>There is no safe yet. Make a new one, or import an archive.</source>
        <translation>Сейфов ещё нет. Создайте новый или импортируйте архив.</translation>
    </message>
</context>
<context>
    <name>SaveLoginDialog</name>
    <message>
        <source>Save login</source>
        <translation>Сохранение логина</translation>
    </message>
    <message>
        <source>Never for this site</source>
        <translation>Никогда для этого сайта</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Мастер-пароль</translation>
    </message>
    <message>
        <source>The login is in the safe now, but it could not be written to the disk. Check the free space and the permissions, then try again.</source>
        <translation>Логин уже в сейфе, но его не удалось записать на диск. Проверьте свободное место и права доступа и повторите попытку.</translation>
    </message>
    <message>
        <source>Your safe is locked. Unlock it to save this login.</source>
        <translation>Ваш сейф заблокирован. Откройте его, чтобы сохранить этот логин.</translation>
    </message>
    <message>
        <source>Your safe has this login already, so there is nothing to save.</source>
        <translation>Этот логин уже есть в Вашем сейфе, сохранять нечего.</translation>
    </message>
    <message>
        <source>Already saved</source>
        <translation>Уже сохранено</translation>
    </message>
    <message>
        <source>Update this login?</source>
        <translation>Обновить этот логин?</translation>
    </message>
    <message>
        <source>Save this login?</source>
        <translation>Сохранить этот логин?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Unlock anyway</source>
        <translation>Всё равно открыть</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Unlocking…</source>
        <translation>Открывается…</translation>
    </message>
    <message numerus="yes">
        <source>What you typed is kept for %n more seconds, then forgotten.</source>
        <translation>
            <numerusform>Введённое хранится ещё %n секунду, затем забывается.</numerusform>
            <numerusform>Введённое хранится ещё %n секунды, затем забывается.</numerusform>
            <numerusform>Введённое хранится ещё %n секунд, затем забывается.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no password to save. Type it in, or choose Not now.</source>
        <translation>Нет пароля для сохранения. Введите его или выберите «Не сейчас».</translation>
    </message>
    <message>
        <source>That login is no longer in the safe. Choose again where to save.</source>
        <translation>Этого логина больше нет в сейфе. Выберите ещё раз, куда сохранить.</translation>
    </message>
    <message>
        <source>The list of sites could not be written. Check the free space and the permissions of the settings folder.</source>
        <translation>Список сайтов не удалось записать. Проверьте свободное место и права доступа к папке настроек.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>You declined logins of this site before. If you do so now, it is not offered again until you lock the safe.</source>
        <translation>Вы уже отклоняли логины этого сайта. Если отклоните и сейчас, предложений не будет, пока Вы не заблокируете сейф.</translation>
    </message>
</context>
<context>
    <name>SaveLoginForm</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Сохранить в</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>A new login</source>
        <translation>Новый логин</translation>
    </message>
    <message>
        <source>Until now: %1</source>
        <translation>До сих пор: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>favourite</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>избранное</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>корзина</translation>
    </message>
    <message>
        <source>weak</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>слабый</translation>
    </message>
    <message>
        <source>expired</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>просрочено</translation>
    </message>
    <message>
        <source>expiring</source>
        <comment>behind &quot;is:&quot;</comment>
        <translation>истекает</translation>
    </message>
    <message>
        <source>kind</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>тип</translation>
    </message>
    <message>
        <source>is</source>
        <comment>before &quot;:&quot; in a search</comment>
        <translation>это</translation>
    </message>
    <message>
        <source>Finds items with all the words in title, user name, address or note.
kind:card shows one kind of item.
is:favourite, is:weak, is:expiring, is:expired and is:trash show items by their state.</source>
        <comment>with the words that are translated as parts of a search</comment>
        <translation>Находит записи, у которых все слова есть в названии, имени пользователя, адресе или заметке.
тип:карта показывает записи одного типа.
это:избранное, это:слабый, это:истекает, это:просрочено и это:корзина показывают записи по их состоянию.</translation>
    </message>
</context>
<context>
    <name>SecretInput</name>
    <message>
        <source>Generate password</source>
        <translation>Создать пароль</translation>
    </message>
    <message>
        <source>Generate password (Ctrl+G)</source>
        <translation>Создать пароль (Ctrl+G)</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Копировать в буфер обмена</translation>
    </message>
    <message>
        <source>Copy to clipboard (Ctrl+C)</source>
        <translation>Копировать в буфер обмена (Ctrl+C)</translation>
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
        <translation>Не удалось сохранить изменения.</translation>
    </message>
    <message>
        <source>Some changes could not be written; what was there before still is. Check that the folder of the safe can be written to and that there is free space, then try again:
%1</source>
        <translation>Некоторые изменения не удалось записать; прежние данные целы. Проверьте, что папка сейфа доступна для записи и есть свободное место, и повторите попытку:
%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Lose changes</source>
        <translation>Потерять изменения</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
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
        <translation>Восстановить</translation>
    </message>
    <message numerus="yes">
        <source>%n items selected</source>
        <translation>
            <numerusform>Выбрана %n запись</numerusform>
            <numerusform>Выбраны %n записи</numerusform>
            <numerusform>Выбрано %n записей</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Delete forever</source>
        <translation>Удалить навсегда</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Choose…</source>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>не выбрано</translation>
    </message>
    <message>
        <source>%1: choose</source>
        <translation>%1: выбрать</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Поиск в настройках</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>No setting matches the search.</source>
        <translation>Нет подходящих настроек.</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Браузер</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Резервные копии</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Everything in the program is shown in it, at once.</source>
        <translation>Вся программа сразу показывается на нём.</translation>
    </message>
    <message>
        <source>The language was not changed.</source>
        <translation>Язык не изменён.</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Проверять обновления</translation>
    </message>
    <message>
        <source>new version download</source>
        <translation>новая версия загрузка скачать обновление</translation>
    </message>
    <message>
        <source>Time until it locks</source>
        <translation>Время до блокировки</translation>
    </message>
    <message>
        <source>How long neither keyboard nor mouse are used, in any program.</source>
        <translation>Сколько времени не используются клавиатура и мышь в любой программе.</translation>
    </message>
    <message>
        <source>auto-lock idle minutes away</source>
        <translation>автоблокировка бездействие простой минуты отсутствие</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> мин</translation>
    </message>
    <message>
        <source>Lock after inactivity</source>
        <translation>Блокировать при бездействии</translation>
    </message>
    <message>
        <source>The safe locks when you leave the computer alone.</source>
        <translation>Сейф блокируется, когда за компьютером никого нет.</translation>
    </message>
    <message>
        <source>auto-lock idle away</source>
        <translation>автоблокировка бездействие простой отсутствие</translation>
    </message>
    <message>
        <source>Lock when the screen saver starts</source>
        <translation>Блокировать при запуске заставки</translation>
    </message>
    <message>
        <source>The safe locks together with the screen.</source>
        <translation>Сейф блокируется вместе с экраном.</translation>
    </message>
    <message>
        <source>auto-lock</source>
        <translation>автоблокировка автоматически</translation>
    </message>
    <message>
        <source>Clear copied values after 60 seconds</source>
        <translation>Очищать скопированное через 60 секунд</translation>
    </message>
    <message>
        <source>What you copied from the safe does not stay on the clipboard, where other programs can read it.</source>
        <translation>Скопированное из сейфа не остаётся в буфере обмена, где его могут прочитать другие программы.</translation>
    </message>
    <message>
        <source>clipboard copy password wipe</source>
        <translation>буфер обмена копирование пароль стирание</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Заполнить</translation>
    </message>
    <message>
        <source>Fill and submit</source>
        <translation>Заполнить и войти</translation>
    </message>
    <message>
        <source>Log in from the main window</source>
        <translation>Вход из главного окна</translation>
    </message>
    <message>
        <source>Whether the page&apos;s form is only filled or also sent. A login can have its own way.</source>
        <translation>Только заполнять форму на странице или также отправлять её. Для логина можно задать отдельно.</translation>
    </message>
    <message>
        <source>automatic form enter</source>
        <translation>автоматически форма ввод</translation>
    </message>
    <message>
        <source>Log in from the quick-access window</source>
        <translation>Вход из окна быстрого доступа</translation>
    </message>
    <message>
        <source>The same for logins that you choose while you are in the browser.</source>
        <translation>То же для логинов, выбранных во время работы в браузере.</translation>
    </message>
    <message>
        <source>automatic form enter extension plugin</source>
        <translation>автоматически форма ввод расширение плагин</translation>
    </message>
    <message>
        <source>Open addresses in</source>
        <translation>Открывать адреса</translation>
    </message>
    <message>
        <source>Where the browser shows the page of a login that is not open yet.</source>
        <translation>Где браузер показывает ещё не открытую страницу логина.</translation>
    </message>
    <message>
        <source>tab window extension plugin</source>
        <translation>вкладка окно расширение плагин</translation>
    </message>
    <message>
        <source>The current tab</source>
        <translation>В текущей вкладке</translation>
    </message>
    <message>
        <source>A new tab</source>
        <translation>В новой вкладке</translation>
    </message>
    <message>
        <source>A new window</source>
        <translation>В новом окне</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Создавать копии</translation>
    </message>
    <message>
        <source>A safe that has not changed since is not copied again.</source>
        <translation>Сейф, не изменившийся с тех пор, повторно не копируется.</translation>
    </message>
    <message>
        <source>interval how often</source>
        <translation>период интервал как часто</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Ежедневно</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Еженедельно</translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Ежемесячно</translation>
    </message>
    <message>
        <source>Folder for backups</source>
        <translation>Папка для копий</translation>
    </message>
    <message>
        <source>Best on another disk. The copies are encrypted like the safe.</source>
        <translation>Лучше на другом диске. Копии зашифрованы так же, как сейф.</translation>
    </message>
    <message>
        <source>path directory archive</source>
        <translation>путь каталог архив</translation>
    </message>
    <message>
        <source>Copies to keep</source>
        <translation>Хранить копий</translation>
    </message>
    <message>
        <source>Of each safe; when there are more, the oldest are deleted.</source>
        <translation>Для каждого сейфа; лишние копии удаляются, начиная с самых старых.</translation>
    </message>
    <message>
        <source>number archives</source>
        <translation>число количество архивы</translation>
    </message>
    <message>
        <source>This folder cannot be written to: %1</source>
        <translation>Эта папка недоступна для записи: %1</translation>
    </message>
    <message>
        <source>Back up automatically</source>
        <translation>Копировать автоматически</translation>
    </message>
    <message>
        <source>Copies of all safes that open with their master password.</source>
        <translation>Копии всех сейфов, которые открываются своим мастер-паролем.</translation>
    </message>
    <message>
        <source>archive copy</source>
        <translation>архив копия резервное копирование</translation>
    </message>
    <message>
        <source>Lock Safe hotkey:</source>
        <translation>Блокировка сейфа:</translation>
    </message>
    <message>
        <source>shortcut key combination</source>
        <translation>сочетание клавиш комбинация горячие</translation>
    </message>
    <message>
        <source>Browser plugin hotkey:</source>
        <translation>Окно быстрого доступа:</translation>
    </message>
    <message>
        <source>Opens the quick-access window for the page in your browser.</source>
        <translation>Открывает окно быстрого доступа для страницы в браузере.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Light or dark, always or as the system has it.</source>
        <translation>Светлые или тёмные — всегда или как в системе.</translation>
    </message>
    <message>
        <source>theme mode night appearance</source>
        <translation>тема режим ночь оформление внешний вид</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлые</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмные</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>Of all texts, with the controls around them.</source>
        <translation>Всех надписей вместе с элементами управления.</translation>
    </message>
    <message>
        <source>font large small zoom scale</source>
        <translation>шрифт крупный мелкий масштаб увеличение</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The text size was not changed.</source>
        <translation>Размер текста не изменён.</translation>
    </message>
    <message>
        <source>No animations</source>
        <translation>Без анимации</translation>
    </message>
    <message>
        <source>When it is off, the system&apos;s setting for animations holds.</source>
        <translation>Если выключено, действует настройка анимации системы.</translation>
    </message>
    <message>
        <source>reduced motion effects</source>
        <translation>меньше движения эффекты</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, but they could not be written to %1</source>
        <translation>Настройки действуют до завершения программы, но их не удалось записать в %1</translation>
    </message>
    <message>
        <source>Locks the safe from any program; on Wayland, from this program&apos;s windows.</source>
        <translation>Блокирует сейф из любой программы; в Wayland — из окон этой программы.</translation>
    </message>
    <message>
        <source>Cloud folder</source>
        <translation>Облачная папка</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Мастер-пароль</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Тот, что открывает этот сейф.</translation>
    </message>
    <message>
        <source>change hint</source>
        <translation>сменить изменить подсказка</translation>
    </message>
    <message>
        <source>Last backup</source>
        <translation>Последняя копия</translation>
    </message>
    <message>
        <source>When each safe was backed up, and when that is done next.</source>
        <translation>Когда скопирован каждый сейф и когда это будет в следующий раз.</translation>
    </message>
    <message>
        <source>back up now restore archive</source>
        <translation>копировать сейчас создать восстановить восстановление архив</translation>
    </message>
    <message>
        <source>Keeps safes the same on several computers.</source>
        <translation>Держит сейфы одинаковыми на нескольких компьютерах.</translation>
    </message>
    <message>
        <source>synchronise sync mirror share provider account computers</source>
        <translation>синхронизировать синхронизация sync зеркало общий доступ поделиться провайдер аккаунт учётная запись компьютеры</translation>
    </message>
    <message>
        <source>Browsers and extensions</source>
        <translation>Браузеры и расширения</translation>
    </message>
    <message>
        <source>In which browsers the extension is, and which may connect.</source>
        <translation>В каких браузерах есть расширение и каким можно подключаться.</translation>
    </message>
    <message>
        <source>plugin install approve connect chrome chromium firefox</source>
        <translation>расширение плагин установить установка разрешить подключить подключение chrome chromium firefox</translation>
    </message>
    <message>
        <source>Sites without an offer</source>
        <translation>Сайты без предложения сохранить</translation>
    </message>
    <message>
        <source>Logins that you type in there are not offered to be saved.</source>
        <translation>Логины, которые Вы там вводите, не предлагается сохранить.</translation>
    </message>
    <message>
        <source>never save login ask again</source>
        <translation>никогда не сохранять логин снова спрашивать</translation>
    </message>
    <message>
        <source>Show the icons of web sites</source>
        <translation>Показывать значки сайтов</translation>
    </message>
    <message>
        <source>They are fetched from the sites of your logins and kept in the safe.</source>
        <translation>Они загружаются с сайтов Ваших логинов и хранятся в сейфе.</translation>
    </message>
    <message>
        <source>favicon logo picture download</source>
        <translation>favicon иконка логотип картинка загрузка</translation>
    </message>
    <message>
        <source>The setting holds until the program ends, but it could not be stored.</source>
        <translation>Настройка действует до завершения программы, но её не удалось сохранить.</translation>
    </message>
    <message>
        <source>Asks once a day whether there is a newer version. Sent are your version and a number made for this computer, nothing else.</source>
        <translation>Раз в день спрашивает, есть ли более новая версия. Отправляются только Ваша версия и номер, созданный для этого компьютера.</translation>
    </message>
    <message>
        <source>Newest version</source>
        <translation>Новейшая версия</translation>
    </message>
    <message>
        <source>Which version there is, and when was last looked for it.</source>
        <translation>Какая версия есть и когда её искали в последний раз.</translation>
    </message>
    <message>
        <source>update check download</source>
        <translation>обновление проверка загрузка</translation>
    </message>
    <message>
        <source>Your desktop does not tell when you are away. The safe locks with the screen and when the computer sleeps.</source>
        <translation>Ваш рабочий стол не сообщает, когда Вы отошли. Сейф блокируется вместе с экраном и когда компьютер засыпает.</translation>
    </message>
    <message>
        <source>Hide the windows from screenshots</source>
        <translation>Скрывать окна на снимках экрана</translation>
    </message>
    <message>
        <source>What is in the safe appears in no recording and on no shared screen.</source>
        <translation>Содержимое сейфа не попадёт ни в запись, ни на показанный другим экран.</translation>
    </message>
    <message>
        <source>screen capture sharing meeting</source>
        <translation>снимок экран запись показ встреча</translation>
    </message>
</context>
<context>
    <name>SetupWizard</name>
    <message>
        <source>Set up Glaceron Password Manager</source>
        <translation>Настройка Glaceron Password Manager</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
</context>
<context>
    <name>ShortcutTable</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Into the list and back</source>
        <translation>В список и обратно</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Добавить запись</translation>
    </message>
    <message>
        <source>Edit the item</source>
        <translation>Изменить запись</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Leave the editor, or clear the search</source>
        <translation>Выйти из правки или очистить поиск</translation>
    </message>
    <message>
        <source>Copy the user name</source>
        <translation>Копировать имя пользователя</translation>
    </message>
    <message>
        <source>Copy the password, or the number of a card or document</source>
        <translation>Копировать пароль либо номер карты или документа</translation>
    </message>
    <message>
        <source>Attach the copied file to the item</source>
        <translation>Вложить скопированный файл в запись</translation>
    </message>
    <message>
        <source>Select all items</source>
        <translation>Выделить все записи</translation>
    </message>
    <message>
        <source>Select more items</source>
        <translation>Выделить больше записей</translation>
    </message>
    <message>
        <source>Menu of the items</source>
        <translation>Меню записей</translation>
    </message>
    <message>
        <source>Remove the items</source>
        <translation>Удалить записи</translation>
    </message>
    <message>
        <source>Take the last removal back</source>
        <translation>Отменить последнее удаление</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Lock the safe</source>
        <translation>Заблокировать сейф</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Завершить программу</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Показать этот список</translation>
    </message>
    <message>
        <source>Log in, or fill in a card or identity</source>
        <translation>Войти или заполнить данные карты или личности</translation>
    </message>
    <message>
        <source>Log in or fill in, from the list or the search</source>
        <translation>Войти или заполнить из списка или поиска</translation>
    </message>
    <message>
        <source>Open the item, in a narrow window</source>
        <translation>Открыть запись, в узком окне</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> или </translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
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
        <translation>Нет подключённого браузера с расширением</translation>
    </message>
    <message>
        <source>What it was made for is no longer edited</source>
        <translation>Запись, для которой он создан, больше не правится</translation>
    </message>
    <message>
        <source>Change password…</source>
        <translation>Сменить пароль…</translation>
    </message>
    <message>
        <source>Master password</source>
        <translation>Мастер-пароль</translation>
    </message>
    <message>
        <source>The one that opens this safe.</source>
        <translation>Тот, что открывает этот сейф.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Categories</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Заблокировать</translation>
    </message>
    <message>
        <source>Password generator</source>
        <translation>Генератор паролей</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>%1 · unlocked</source>
        <translation>%1 · открыт</translation>
    </message>
    <message>
        <source>Finish setting up</source>
        <translation>Завершить настройку</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>less than 1 KB</source>
        <translation>меньше 1 КБ</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 КБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
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
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>SortButton</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>Most used</source>
        <translation>Частые</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Недавние</translation>
    </message>
    <message>
        <source>Last changed</source>
        <translation>Изменённые</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Новые</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Порядок: %1</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
</context>
<context>
    <name>TrashBar</name>
    <message>
        <source>Restore all</source>
        <translation>Вернуть все</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Очистить</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Open Main Window</source>
        <translation>Открыть главное окно</translation>
    </message>
    <message>
        <source>Password Generator</source>
        <translation>Генератор паролей</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Заблокировать</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Quick Access</source>
        <translation>Быстрый доступ</translation>
    </message>
</context>
<context>
    <name>UnlockLogic</name>
    <message>
        <source>This safe is not available. Check that its folder is there:
%1</source>
        <translation>Этот сейф недоступен. Проверьте, что его папка на месте:
%1</translation>
    </message>
    <message>
        <source>No any safe is selected</source>
        <translation>Сейф не выбран</translation>
    </message>
    <message>
        <source>Wrong Password! Try again</source>
        <translation>Неверный пароль! Попробуйте ещё раз</translation>
    </message>
    <message>
        <source>The safe could not be read. Check that its folder is there and that you may read it, then try again.</source>
        <translation>Не удалось прочитать сейф. Проверьте, что его папка на месте и доступна для чтения, и повторите попытку.</translation>
    </message>
    <message>
        <source>Unlock your safe to go on</source>
        <translation>Откройте сейф, чтобы продолжить</translation>
    </message>
    <message>
        <source>This safe is on a drive that is not connected. Connect it, then choose the safe again:
%1</source>
        <translation>Этот сейф на неподключённом носителе. Подключите его и выберите сейф ещё раз:
%1</translation>
    </message>
    <message>
        <source>Another program on this computer has this safe open. What both change at the same time can get lost, so close it there first.</source>
        <translation>Этот сейф открыт в другой программе на этом компьютере. То, что обе меняют одновременно, может потеряться, поэтому сначала закройте его там.</translation>
    </message>
    <message>
        <source>This safe is open on the computer “%1”, or was when that computer stopped. What both change at the same time can get lost, so close it there first.</source>
        <translation>Этот сейф открыт на компьютере «%1» или был открыт, когда тот выключился. То, что оба меняют одновременно, может потеряться, поэтому сначала закройте его там.</translation>
    </message>
    <message>
        <source>This is the password from before it was changed. Use the new one.</source>
        <translation>Это пароль, который был до смены. Используйте новый.</translation>
    </message>
    <message>
        <source>This is the password from before a change that was interrupted.</source>
        <translation>Это пароль, который был до прерванной смены.</translation>
    </message>
    <message>
        <source>This password was set on another computer. Unlock with the former one; then you are asked for this one.</source>
        <translation>Этот пароль задан на другом компьютере. Откройте сейф прежним паролем, затем Вас попросят ввести этот.</translation>
    </message>
    <message>
        <source>Looking for this safe. Its drive does not answer yet:
%1</source>
        <translation>Идёт поиск этого сейфа. Его диск пока не отвечает:
%1</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Show…</source>
        <translation>Показать…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Show the new version</source>
        <translation>Показать новую версию</translation>
    </message>
    <message>
        <source>Check for a newer version now</source>
        <translation>Проверить сейчас, есть ли более новая версия</translation>
    </message>
    <message>
        <source>Version %1 is here</source>
        <translation>Вышла версия %1</translation>
    </message>
    <message>
        <source>You have the newest version, %1</source>
        <translation>У Вас новейшая версия, %1</translation>
    </message>
    <message>
        <source>You have version %1</source>
        <translation>У Вас версия %1</translation>
    </message>
    <message>
        <source>This program was built without an address to ask for newer versions, so it never looks for them.</source>
        <translation>Эта программа собрана без адреса, где спрашивать о новых версиях, поэтому она их никогда не ищет.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>There was no answer that could be used. Check the connection to the internet and try again.</source>
        <translation>Пригодного ответа не было. Проверьте подключение к интернету и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Последняя проверка: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ещё не проверялось</translation>
    </message>
</context>
<context>
    <name>WindowMover</name>
    <message>
        <source>Minimise</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
