#include "ProgramShortcuts.h"

#include "main/ShortcutTable.h"

#include <QAction>
#include <QCoreApplication>
#include <QShortcut>
#include <QWidget>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("ProgramShortcuts", source);
}

QVector<TakenKeys> textKeys()
{
    static const struct
    {
        QKeySequence::StandardKey key;
        const char *name;
    } commands[] = {
        {QKeySequence::Copy, QT_TRANSLATE_NOOP("ProgramShortcuts", "copy")},
        {QKeySequence::Cut, QT_TRANSLATE_NOOP("ProgramShortcuts", "cut")},
        {QKeySequence::Paste, QT_TRANSLATE_NOOP("ProgramShortcuts", "paste")},
        {QKeySequence::Undo, QT_TRANSLATE_NOOP("ProgramShortcuts", "undo")},
        {QKeySequence::Redo, QT_TRANSLATE_NOOP("ProgramShortcuts", "redo")},
        {QKeySequence::SelectAll, QT_TRANSLATE_NOOP("ProgramShortcuts", "select all")},
    };
    QVector<TakenKeys> keys;
    for (const auto &command : commands) {
        for (const QKeySequence &binding : QKeySequence::keyBindings(command.key))
            keys.append({binding, text(command.name)});
    }
    return keys;
}

QString nameOf(const QKeySequence &keys)
{
    for (const ShortcutRow &row : shortcutTable()) {
        if (row.keys.contains(keys))
            return row.text;
    }
    return text(QT_TRANSLATE_NOOP("ProgramShortcuts", "a command of this program"));
}

} // namespace

QVector<TakenKeys> programShortcuts(const QWidget *window)
{
    QVector<TakenKeys> taken = textKeys();
    if (!window)
        return taken;
    for (const QShortcut *shortcut : window->findChildren<QShortcut *>()) {
        // The hotkeys are compared with each other by their settings.
        if (shortcut->context() != Qt::ApplicationShortcut)
            taken.append({shortcut->key(), nameOf(shortcut->key())});
    }
    for (const QAction *action : window->findChildren<QAction *>()) {
        for (const QKeySequence &keys : action->shortcuts())
            taken.append({keys, nameOf(keys)});
    }
    return taken;
}
