#include "HotkeyRules.h"

#include "HotkeyText.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("HotkeyRules", source);
}

bool isFunctionKey(int key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F35;
}

} // namespace

QString hotkeyFault(int key, const QVector<TakenKeys> &taken)
{
    const int plainKey = key & ~int(Qt::KeyboardModifierMask);
    // The Shift key alone only writes another letter.
    const bool modified = key & int(Qt::CTRL | Qt::ALT | Qt::META);
    if (!modified && !isFunctionKey(plainKey))
        return text(QT_TRANSLATE_NOOP("HotkeyRules", "Use it together with Ctrl, Alt or Meta"));
    const QKeySequence keys(key);
    if (!hotkeyCombination(keys.toString(QKeySequence::PortableText)))
        return text(QT_TRANSLATE_NOOP("HotkeyRules", "This key can not be used"));
    for (const TakenKeys &other : taken) {
        if (!other.keys.isEmpty() && other.keys == keys)
            return text(QT_TRANSLATE_NOOP("HotkeyRules", "%1 is taken by: %2"))
                .arg(keys.toString(QKeySequence::NativeText), other.name);
    }
    return {};
}
