#pragma once

#include "PMListItem.h"

/// An account on a file server.
class PMFtpAccount : public PMListItem
{
    Q_OBJECT

public:
    explicit PMFtpAccount(QObject *parent = nullptr)
        : PMListItem(FtpAccount, parent)
    {
    }

    PM_PROPERTY(QString, server, setServer)
    PM_PROPERTY(QString, username, setUsername)
    PM_PROPERTY(QString, password, setPassword)
};
