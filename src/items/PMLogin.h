#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A web site account.
class PMLogin : public PMListItem
{
    Q_OBJECT

public:
    explicit PMLogin(QObject *parent = nullptr)
        : PMListItem(Login, parent)
        , m_fillType(PMFieldTypes::LoginFillType::GlobalSettings)
        , m_strength(PMFieldTypes::PasswordStrength::Terrible)
    {
    }

    PM_PROPERTY(QString, password, setPassword)
    PM_PROPERTY(QString, login, setLogin)
    PM_PROPERTY(PMFieldTypes::LoginFillType, fillType, setFillType)
    PM_PROPERTY(PMFieldTypes::PasswordStrength, strength, setStrength)
};
