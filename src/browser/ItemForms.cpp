#include "ItemForms.h"

#include "CardValues.h"
#include "IdentityValues.h"

QVector<FilledForm> fillCardForms(const QJsonObject &page, const PMCreditCard &card)
{
    return fillForms(page, FillAction::CreditCard,
                     [&](const FieldPlace &place) { return cardValue(card, place); });
}

QVector<FilledForm> fillIdentityForms(const QJsonObject &page, const PMIdentity &identity)
{
    return fillForms(page, FillAction::Identity,
                     [&](const FieldPlace &place) { return identityValue(identity, place); });
}
