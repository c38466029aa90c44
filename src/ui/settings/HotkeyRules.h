#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>

/// A key combination that does something already.
struct TakenKeys
{
    QKeySequence keys;
    QString name; ///< what it does, translated
};

/// What is wrong with a key combination as a hotkey, translated; empty when it can be one.
/// @param key one combination, as Qt::Key with Qt::KeyboardModifiers
QString hotkeyFault(int key, const QVector<TakenKeys> &taken);
