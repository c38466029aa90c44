#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

class QWidget;

/// Something that the user can set: how it is described, edited, read and written. Texts are
/// translated.
struct Setting
{
    enum Page { General, Security, Browser, Backup, Cloud, Hotkeys, Appearance, PageCount };
    /// A panel is a widget of its own beside the settings of its page, and sets nothing.
    enum Editor { Switch, Number, Choice, Folder, Hotkey, Panel };

    struct Option
    {
        QVariant value;
        QString text;
    };

    const char *id; ///< the name of its editor, too
    Page page;
    QString label;
    QString explanation;
    QString searchWords; ///< found besides label and explanation
    Editor editor;
    std::function<QVariant()> value;
    /// Applies and stores the value; returns what is wrong, and then nothing has changed or, when
    /// it could only not be stored, holds until the program ends. Empty when all is well.
    std::function<QString(const QVariant &)> apply;
    QVector<Option> options = {}; ///< of a choice
    int least = 0;                ///< of a number
    int most = 0;
    QString unit = {};
    const char *neededSwitch = nullptr; ///< the id of the switch without which it has no effect
    std::function<QWidget *(QWidget *parent)> makePanel = {};
};
