#pragma once

#include <QString>

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
