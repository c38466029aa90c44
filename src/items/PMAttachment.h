#pragma once

#include "PMListItem.h"

/// A file kept in the safe. The item is its description; the bytes lie in a file of their own, and
/// `hash` is the Base64 SHA-256 of that file as it is stored, encrypted.
class PMAttachment : public PMListItem
{
    Q_OBJECT
    Q_PROPERTY(QString id READ id WRITE setId NOTIFY idChanged)

public:
    explicit PMAttachment(QObject *parent = nullptr)
        : PMListItem(Attachment, parent)
    {
        connect(this, &PMListItem::idChanged, this, &PMAttachment::idChanged);
    }

Q_SIGNALS:
    void idChanged();

    PM_PROPERTY(QString, filename, setFilename)
    PM_PROPERTY(QString, hash, setHash)
};
