#pragma once

#include "PMFieldTypes.h"
#include "PMListItem.h"

/// A payment card. Only year and month of its expiry date have a meaning.
class PMCreditCard : public PMListItem
{
    Q_OBJECT

public:
    enum CreditCardType { Visa = 0, MasterCard = 1, UndefinedCard = 2 };
    Q_ENUM(CreditCardType)

    explicit PMCreditCard(QObject *parent = nullptr)
        : PMListItem(CreditCard, parent)
        , m_cardType(UndefinedCard)
    {
    }

    PM_PROPERTY(CreditCardType, cardType, setCardType)
    PM_PROPERTY(QString, code, setCode)
    PM_PROPERTY(QString, cardholder, setCardholder)
    PM_PROPERTY(QString, bank, setBank)
    PM_PROPERTY(QString, bankSite, setBankSite)
    PM_PROPERTY(PMFieldTypes::Phone, bankPhone, setBankPhone)
    PM_PROPERTY(PMFieldTypes::Date, expire, setExpire)
    PM_PROPERTY(QString, number, setNumber)
};
