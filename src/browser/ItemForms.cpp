#include "ItemForms.h"

#include "CardValues.h"
#include "FieldShape.h"
#include "IdentityValues.h"

namespace {

/// What is too long for a line is left out: half a value is a wrong one.
QString fitting(const FieldPlace &place, const QString &value)
{
    const bool isChoice = place.field().isSelect() || place.field().isRadio();
    return isChoice || fits(place.field(), value) ? value : QString();
}

} // namespace

QVector<FilledForm> fillCardForms(const QJsonObject &page, const PMCreditCard &card)
{
    return fillForms(page, FillAction::CreditCard, [&](const FieldPlace &place) {
        return fitting(place, cardValue(card, place));
    });
}

QVector<FilledForm> fillIdentityForms(const QJsonObject &page, const PMIdentity &identity)
{
    return fillForms(page, FillAction::Identity, [&](const FieldPlace &place) {
        return fitting(place, identityValue(identity, place));
    });
}
