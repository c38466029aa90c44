#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A person with address and contacts, for filling forms.
class PMIdentity : public PMListItem
{
    Q_OBJECT

public:
    explicit PMIdentity(QObject *parent = nullptr)
        : PMListItem(Identity, parent)
    {
    }

    PM_PROPERTY(QString, firstName, setFirstName)
    PM_PROPERTY(QString, lastName, setLastName)
    PM_PROPERTY(PMFieldTypes::Date, birthDate, setBirthDate)
    PM_PROPERTY(QString, email, setEmail)
    PM_PROPERTY(QString, country, setCountry)
    PM_PROPERTY(PMFieldTypes::Phone, phone, setPhone)
    PM_PROPERTY(PMFieldTypes::Phone, phoneCell, setPhoneCell)
    PM_PROPERTY(PMFieldTypes::Phone, phoneBusiness, setPhoneBusiness)
    PM_PROPERTY(QString, zipCode, setZipCode)
    PM_PROPERTY(QString, state, setState)
    PM_PROPERTY(QString, city, setCity)
    PM_PROPERTY(QString, addressLine1, setAddressLine1)
    PM_PROPERTY(QString, addressLine2, setAddressLine2)
    PM_PROPERTY(QString, website, setWebsite)
    PM_PROPERTY(QString, skype, setSkype)
    PM_PROPERTY(QString, jobTitle, setJobTitle)
    PM_PROPERTY(QString, company, setCompany)
    PM_PROPERTY(PMFieldTypes::Gender, gender, setGender)
};
