#pragma once

#include "SecretBytes.h"

#include <QObject>
#include <QString>

#include <functional>

/// Copies secrets to the system's clipboard, marked as such, and takes them off again. What is
/// selected in the program stays off the clipboard that X11 keeps for the middle mouse button.
class ClipboardKeeper : public QObject
{
    Q_OBJECT

public:
    /// How long a copied value stays, in milliseconds.
    static const int keepMs = 60000;

    /// Does something after a time in milliseconds, unless the context is gone by then.
    using Later =
        std::function<void(int ms, const QObject *context, const std::function<void()> &action)>;

    explicit ClipboardKeeper(Later later = {}, QObject *parent = nullptr);

    /// Puts a text on the clipboard and remembers it. With `clearLater` it is cleared after keepMs
    /// unless something else is there by then. A timer of an earlier copy may clear it sooner.
    void copy(const QString &text, bool clearLater);

    /// From now on treats what the program puts on the clipboard in other ways, such as the text
    /// selected in a field, as if it had been given to copy().
    void adoptOtherCopies(const std::function<bool()> &clearLater);

    /// Clears the clipboard if it still holds the remembered text, which is forgotten.
    void clear();

Q_SIGNALS:
    void copied(bool clearLater);
    void cleared();

private:
    void dropSelection();
    void adopt();
    bool isOnClipboard() const;

    Later m_later;
    SecretBytes m_text;
    std::function<bool()> m_clearLater;
};
