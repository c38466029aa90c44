#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A bank account.
class PMBankAccount : public PMListItem
{
    Q_OBJECT

public:
    explicit PMBankAccount(QObject *parent = nullptr)
        : PMListItem(BankAccount, parent)
    {
    }

    PM_PROPERTY(QString, bankName, setBankName)
    PM_PROPERTY(QString, name, setName)
    PM_PROPERTY(QString, accountType, setAccountType)
    PM_PROPERTY(QString, routing, setRouting)
    PM_PROPERTY(QString, number, setNumber)
    PM_PROPERTY(QString, swift, setSwift)
    PM_PROPERTY(QString, iban, setIban)
    PM_PROPERTY(QString, pin, setPin)
    PM_PROPERTY(PMFieldTypes::Phone, phone, setPhone)
    PM_PROPERTY(QString, address, setAddress)
};
