#include "HotkeyText.h"

namespace {

using Keys = SystemHotkeys;

char32_t specialKey(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return Keys::F1 + static_cast<char32_t>(key - Qt::Key_F1);
    struct Row
    {
        Qt::Key qt;
        char32_t key;
    };
    static const Row rows[] = {{Qt::Key_Escape, Keys::Escape},
                               {Qt::Key_Tab, Keys::Tab},
                               {Qt::Key_Backtab, Keys::Tab},
                               {Qt::Key_Backspace, Keys::Backspace},
                               {Qt::Key_Return, Keys::Return},
                               {Qt::Key_Insert, Keys::Insert},
                               {Qt::Key_Delete, Keys::Delete},
                               {Qt::Key_Home, Keys::Home},
                               {Qt::Key_End, Keys::End},
                               {Qt::Key_PageUp, Keys::PageUp},
                               {Qt::Key_PageDown, Keys::PageDown},
                               {Qt::Key_Left, Keys::Left},
                               {Qt::Key_Up, Keys::Up},
                               {Qt::Key_Right, Keys::Right},
                               {Qt::Key_Down, Keys::Down},
                               {Qt::Key_Pause, Keys::Pause},
                               {Qt::Key_Print, Keys::Print},
                               {Qt::Key_ScrollLock, Keys::ScrollLock}};
    for (const Row &row : rows) {
        if (row.qt == key)
            return row.key;
    }
    return 0;
}

/// Those that nobody presses while typing.
bool standsAlone(char32_t key)
{
    return (key >= Keys::F1 && key <= Keys::F24) || key == Keys::Pause || key == Keys::Print ||
           key == Keys::ScrollLock;
}

unsigned modifiersOf(int keys)
{
    return (keys & Qt::SHIFT ? unsigned(Keys::Shift) : 0U) |
           (keys & Qt::CTRL ? unsigned(Keys::Control) : 0U) |
           (keys & Qt::ALT ? unsigned(Keys::Alt) : 0U) |
           (keys & Qt::META ? unsigned(Keys::Meta) : 0U);
}

} // namespace

std::optional<SystemHotkeys::Combination> hotkeyCombination(const QString &text)
{
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (sequence.count() != 1)
        return {};
    const int keys = sequence[0];
    const int key = keys & ~static_cast<int>(Qt::KeyboardModifierMask);
    if (key == Qt::Key_unknown)
        return {};
    SystemHotkeys::Combination combination;
    combination.modifiers = modifiersOf(keys);
    const bool writes = key < Qt::Key_Escape;
    combination.key =
        writes ? QChar::toLower(static_cast<uint>(key)) : static_cast<uint>(specialKey(key));
    const bool guarded = (combination.modifiers & ~unsigned(Keys::Shift)) != 0;
    if (combination.key == 0 || (!guarded && !standsAlone(combination.key)))
        return {};
    return combination;
}

QKeySequence hotkeySequence(const QString &text)
{
    return hotkeyCombination(text) ? QKeySequence::fromString(text, QKeySequence::PortableText)
                                   : QKeySequence();
}
