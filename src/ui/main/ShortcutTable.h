#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>

/// What can be done with the keyboard in the main view: the one place that knows the keys. They are
/// installed from here, and listed for the user from here.
struct ShortcutRow
{
    enum Command {
        Search,
        CreateItem,
        EditItem,
        SaveItem,
        LogIn,
        CopyUserName,
        CopySecret,
        Undo,
        Paste,
        Lock,
        Settings,
        ShowShortcuts,
        Told ///< known to the list or the window themselves; here they are only listed
    };

    Command command;
    QVector<QKeySequence> keys;
    QString text;
};

/// All rows in the order in which they are listed.
QVector<ShortcutRow> shortcutTable();
