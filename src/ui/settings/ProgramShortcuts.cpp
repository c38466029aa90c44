#include "ProgramShortcuts.h"

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
    static const struct
    {
        const char *keys;
        const char *name;
    } commands[] = {
        {"Ctrl+F", QT_TRANSLATE_NOOP("ProgramShortcuts", "search")},
        {"Ctrl+N", QT_TRANSLATE_NOOP("ProgramShortcuts", "new item")},
        {"Ctrl+E", QT_TRANSLATE_NOOP("ProgramShortcuts", "edit")},
        {"F2", QT_TRANSLATE_NOOP("ProgramShortcuts", "edit")},
        {"Ctrl+S", QT_TRANSLATE_NOOP("ProgramShortcuts", "save")},
        {"Ctrl+Return", QT_TRANSLATE_NOOP("ProgramShortcuts", "log in")},
        {"Ctrl+Enter", QT_TRANSLATE_NOOP("ProgramShortcuts", "log in")},
        {"Ctrl+B", QT_TRANSLATE_NOOP("ProgramShortcuts", "copy the user name")},
        {"Ctrl+Shift+C", QT_TRANSLATE_NOOP("ProgramShortcuts", "copy the password")},
        {"Ctrl+G", QT_TRANSLATE_NOOP("ProgramShortcuts", "password generator")},
        {"Ctrl+L", QT_TRANSLATE_NOOP("ProgramShortcuts", "lock")},
        {"Ctrl+,", QT_TRANSLATE_NOOP("ProgramShortcuts", "settings")},
        {"Ctrl+Q", QT_TRANSLATE_NOOP("ProgramShortcuts", "exit")},
    };
    for (const auto &command : commands) {
        if (keys == QKeySequence(QLatin1String(command.keys)))
            return text(command.name);
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
