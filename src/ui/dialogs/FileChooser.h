#pragma once

#include <QStringList>

#include <functional>

class QWidget;
class UiSettings;

/// How the user points to a file or a folder; an empty answer means that he did not.
struct FileChooser
{
    std::function<QString(const QString &caption, const QString &filter)> openFile;
    /// @param name of the file that is proposed, in the folder last used
    std::function<QString(const QString &caption, const QString &name, const QString &filter)>
        saveFile;
    std::function<QString(const QString &caption)> folder;
};

/// Asks with the system's dialogs above a widget's window, beginning where the last one ended.
FileChooser dialogFileChooser(QWidget *widget, UiSettings &settings);

/// Ask with the system's dialog above a widget's window. Nothing also when that window went
/// meanwhile, as a lock takes it: whoever asked may be gone then, too.
QStringList askForFiles(QWidget *widget, const QString &caption);
QString askForFile(QWidget *widget, const QString &caption, const QString &folder,
                   const QString &filter);
QString askForFolder(QWidget *widget, const QString &caption, const QString &folder);
/// The user has agreed to replace what is there already.
/// @param path proposed; its suffix is added to a name that is entered without one
QString askForTarget(QWidget *widget, const QString &caption, const QString &path,
                     const QString &filter = {});

/// The same with any dialog that asks before a file is replaced, but may not add a suffix: when
/// the name with it is taken, it is shown again with the whole name.
QString targetWithSuffix(const std::function<QString(const QString &path)> &ask,
                         const QString &path);
