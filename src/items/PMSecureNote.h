#pragma once

#include "PMListItem.h"

/// A text to keep to oneself.
class PMSecureNote : public PMListItem
{
    Q_OBJECT

public:
    explicit PMSecureNote(QObject *parent = nullptr)
        : PMListItem(SecureNote, parent)
    {
    }

    PM_PROPERTY(QString, text, setText)
};
