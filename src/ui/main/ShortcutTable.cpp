#include "ShortcutTable.h"

#include <QCoreApplication>

namespace {

struct Row
{
    ShortcutRow::Command command;
    const char *keys; ///< with spaces between those that do the same
    const char *text;
};

const Row rows[] = {
    {ShortcutRow::Search, "Ctrl+F", QT_TRANSLATE_NOOP("ShortcutTable", "Search")},
    {ShortcutRow::Told, "Down Up", QT_TRANSLATE_NOOP("ShortcutTable", "Into the list and back")},
    {ShortcutRow::Told, "Right",
     QT_TRANSLATE_NOOP("ShortcutTable", "Open the item, in a narrow window")},
    {ShortcutRow::CreateItem, "Ctrl+N", QT_TRANSLATE_NOOP("ShortcutTable", "Add an item")},
    {ShortcutRow::EditItem, "F2 Ctrl+E", QT_TRANSLATE_NOOP("ShortcutTable", "Edit the item")},
    {ShortcutRow::SaveItem, "Ctrl+S", QT_TRANSLATE_NOOP("ShortcutTable", "Save")},
    {ShortcutRow::Told, "Esc",
     QT_TRANSLATE_NOOP("ShortcutTable", "Leave the editor, or clear the search")},
    {ShortcutRow::LogIn, "Ctrl+Return Ctrl+Enter",
     QT_TRANSLATE_NOOP("ShortcutTable", "Log in, or fill in a card or identity")},
    {ShortcutRow::Told, "Return",
     QT_TRANSLATE_NOOP("ShortcutTable", "Log in or fill in, from the list or the search")},
    {ShortcutRow::CopyUserName, "Ctrl+B", QT_TRANSLATE_NOOP("ShortcutTable", "Copy the user name")},
    {ShortcutRow::CopySecret, "Ctrl+C Ctrl+Shift+C",
     QT_TRANSLATE_NOOP("ShortcutTable", "Copy the password, or the number of a card or document")},
    {ShortcutRow::Paste, "Ctrl+V",
     QT_TRANSLATE_NOOP("ShortcutTable", "Attach the copied file to the item")},
    {ShortcutRow::Told, "Ctrl+A", QT_TRANSLATE_NOOP("ShortcutTable", "Select all items")},
    {ShortcutRow::Told, "Shift+Down Shift+Up",
     QT_TRANSLATE_NOOP("ShortcutTable", "Select more items")},
    {ShortcutRow::Told, "Shift+F10", QT_TRANSLATE_NOOP("ShortcutTable", "Menu of the items")},
    {ShortcutRow::Told, "Del", QT_TRANSLATE_NOOP("ShortcutTable", "Remove the items")},
    {ShortcutRow::Undo, "Ctrl+Z", QT_TRANSLATE_NOOP("ShortcutTable", "Take the last removal back")},
    {ShortcutRow::Settings, "Ctrl+,", QT_TRANSLATE_NOOP("ShortcutTable", "Settings")},
    {ShortcutRow::Lock, "Ctrl+L", QT_TRANSLATE_NOOP("ShortcutTable", "Lock the safe")},
    {ShortcutRow::Told, "Ctrl+Q", QT_TRANSLATE_NOOP("ShortcutTable", "End the program")},
    {ShortcutRow::ShowShortcuts, "? F1", QT_TRANSLATE_NOOP("ShortcutTable", "Show this list")},
};

} // namespace

QVector<ShortcutRow> shortcutTable()
{
    QVector<ShortcutRow> table;
    for (const Row &row : rows) {
        QVector<QKeySequence> keys;
        const QStringList names = QString::fromLatin1(row.keys).split(QLatin1Char(' '));
        for (const QString &name : names)
            keys.append(QKeySequence(name, QKeySequence::PortableText));
        table.append({row.command, keys, QCoreApplication::translate("ShortcutTable", row.text)});
    }
    return table;
}
