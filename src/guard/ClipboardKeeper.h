#pragma once

#include <QObject>
#include <QString>

/// Copies secrets to the system's clipboard and takes them off again.
class ClipboardKeeper : public QObject
{
    Q_OBJECT

public:
    /// How long a copied value stays, in milliseconds.
    static const int keepMs = 60000;

    explicit ClipboardKeeper(QObject *parent = nullptr);

    /// Puts a text on the clipboard and remembers it. With `clearLater` it is cleared after keepMs
    /// unless something else is there by then. A timer of an earlier copy may clear it sooner.
    void copy(const QString &text, bool clearLater);

    /// Clears the clipboard if it still holds the remembered text, which is forgotten.
    void clear();

Q_SIGNALS:
    void copied(bool clearLater);
    void cleared();

private:
    QString m_text;
};
