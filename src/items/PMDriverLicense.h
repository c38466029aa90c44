#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A driving licence. The address is spelt with one d: the name is a key of stored documents.
class PMDriverLicense : public PMListItem
{
    Q_OBJECT

public:
    explicit PMDriverLicense(QObject *parent = nullptr)
        : PMListItem(DriverLicense, parent)
    {
    }

    PM_PROPERTY(QString, fullName, setFullName)
    PM_PROPERTY(QString, adress, setAdress)
    PM_PROPERTY(int, height, setHeight)
    PM_PROPERTY(PMFieldTypes::Date, birthDate, setBirthDate)
    PM_PROPERTY(QString, number, setNumber)
    PM_PROPERTY(QString, licenseClass, setLicenseClass)
    PM_PROPERTY(QString, conditions, setConditions)
    PM_PROPERTY(QString, state, setState)
    PM_PROPERTY(QString, country, setCountry)
    PM_PROPERTY(PMFieldTypes::Date, expireDate, setExpireDate)
    PM_PROPERTY(PMFieldTypes::Gender, gender, setGender)
};
