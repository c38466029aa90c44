#pragma once

#include "PMListItem.h"

/// A social-security number.
class PMSSN : public PMListItem
{
    Q_OBJECT

public:
    explicit PMSSN(QObject *parent = nullptr)
        : PMListItem(SSN, parent)
    {
    }

    PM_PROPERTY(QString, name, setName)
    PM_PROPERTY(QString, number, setNumber)
};
