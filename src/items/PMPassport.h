#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A passport.
class PMPassport : public PMListItem
{
    Q_OBJECT

public:
    explicit PMPassport(QObject *parent = nullptr)
        : PMListItem(Passport, parent)
    {
    }

    PM_PROPERTY(QString, fullName, setFullName)
    PM_PROPERTY(QString, nationality, setNationality)
    PM_PROPERTY(QString, passportType, setPassportType)
    PM_PROPERTY(QString, birthPlace, setBirthPlace)
    PM_PROPERTY(PMFieldTypes::Date, birthDate, setBirthDate)
    PM_PROPERTY(QString, number, setNumber)
    PM_PROPERTY(QString, authority, setAuthority)
    PM_PROPERTY(PMFieldTypes::Date, issuedDate, setIssuedDate)
    PM_PROPERTY(QString, country, setCountry)
    PM_PROPERTY(PMFieldTypes::Date, expireDate, setExpireDate)
};
