#include "HotkeyLineEdit.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <utility>

namespace {

/// Whether a key moves on in the window, or leaves it, as everywhere.
bool isWayOut(const QKeyEvent &event)
{
    static const QVector<int> keys = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape};
    return keys.contains(event.key()) &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool isHalf(int key)
{
    static const QVector<int> keys = {0,
                                      Qt::Key_unknown,
                                      Qt::Key_Shift,
                                      Qt::Key_Control,
                                      Qt::Key_Alt,
                                      Qt::Key_Meta,
                                      Qt::Key_AltGr,
                                      Qt::Key_Super_L,
                                      Qt::Key_Super_R,
                                      Qt::Key_CapsLock,
                                      Qt::Key_NumLock,
                                      Qt::Key_ScrollLock,
                                      Qt::Key_Hyper_L,
                                      Qt::Key_Hyper_R};
    return keys.contains(key);
}

} // namespace

HotkeyLineEdit::HotkeyLineEdit(std::function<QVector<TakenKeys>()> taken, QWidget *parent)
    : TextField(parent)
    , m_taken(std::move(taken))
{
    setReadOnly(true);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setPlaceholderText(tr("Press keys"));
    setToolTip(tr("Press a combination of keys; Backspace clears it"));
}

void HotkeyLineEdit::setHotkey(const QString &hotkey)
{
    m_hotkey = hotkey;
    setText(QKeySequence(hotkey, QKeySequence::PortableText).toString(QKeySequence::NativeText));
}

bool HotkeyLineEdit::event(QEvent *event)
{
    // The combination is to be recorded, not to do what it does.
    if (event->type() == QEvent::ShortcutOverride && !isWayOut(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return TextField::event(event);
}

void HotkeyLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isWayOut(*event)) {
        event->ignore();
        return;
    }
    if (isHalf(event->key()))
        return;
    const int modifiers = int(event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier |
                                                    Qt::AltModifier | Qt::MetaModifier));
    QString hotkey;
    const bool clears = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (!clears || modifiers != 0) {
        const int keys = event->key() | modifiers;
        const QString fault = hotkeyFault(keys, m_taken());
        if (!fault.isEmpty()) {
            Q_EMIT refused(fault);
            return;
        }
        hotkey = QKeySequence(keys).toString(QKeySequence::PortableText);
    }
    setHotkey(hotkey);
    Q_EMIT hotkeyChanged(hotkey);
}

void HotkeyLineEdit::contextMenuEvent(QContextMenuEvent *event)
{
    // Its commands are those of a text.
    event->accept();
}
