#include "ItemDraft.h"

#include "CardNumber.h"
#include "FieldRules.h"
#include "FieldText.h"
#include "ItemSummary.h"
#include "PMCreditCard.h"
#include "PMLogin.h"
#include "PasswordStrength.h"

#include <QDebug>
#include <QMetaProperty>

namespace {

void writeProperty(PMListItem &item, const char *name, const QVariant &value)
{
    const int index = item.metaObject()->indexOfProperty(name);
    if (index < 0) {
        qWarning().noquote() << QStringLiteral("! Ui: Can't find proprty '%1' in %2")
                                    .arg(QLatin1String(name), item.id());
        return;
    }
    if (!value.isValid()) {
        qWarning().noquote() << QStringLiteral("! Ui: Invalid value for property '%1' in %2")
                                    .arg(QLatin1String(name), item.id());
        return;
    }
    if (!item.metaObject()->property(index).write(&item, value))
        qWarning() << "! Ui: Field write failed:" << name << item.id();
}

/// What lists show of an item, and other fields that follow from those that are edited.
void deriveFields(PMListItem &item)
{
    item.setSecondaryText(itemSummary(item));
    if (auto *login = qobject_cast<PMLogin *>(&item)) {
        const int level = passwordStrengthLevel(login->password());
        login->setStrength(static_cast<PMFieldTypes::PasswordStrength>(level));
    } else if (auto *card = qobject_cast<PMCreditCard *>(&item)) {
        // A card of which only the type is known keeps it.
        if (!card->number().isEmpty())
            card->setCardType(CardNumber::brand(card->number()));
    }
}

} // namespace

ItemDraft::ItemDraft(const PMListItem &item, const QVector<ItemField> &fields, bool isNew)
    : m_isNew(isNew)
{
    for (const ItemField &field : fields) {
        if (field.form == ItemField::CardType)
            continue; // follows from the number
        const QVariant value = item.property(field.property);
        if (!value.isValid()) {
            qWarning() << "! Ui: Field reset failed:" << field.property << item.id();
            continue;
        }
        // Editors choose enumerations by number.
        const bool isChoice = field.form == ItemField::FillType || field.form == ItemField::Gender;
        m_original.insert(field.property, isChoice ? QVariant(value.toInt()) : value);
        m_fields.append(field);
    }
    m_values = m_original;
}

void ItemDraft::suggest(const char *property, const QVariant &value)
{
    setValue(property, value);
    if (m_original.contains(property))
        m_original.insert(property, value);
}

void ItemDraft::setValue(const char *property, const QVariant &value)
{
    if (!m_values.contains(property)) {
        qWarning() << "! Ui: Try to write unbinded field for property" << property;
        return;
    }
    m_values.insert(property, value);
}

bool ItemDraft::hasEmptyRequired() const
{
    return std::any_of(m_fields.begin(), m_fields.end(), [this](const ItemField &field) {
        return field.has(ItemField::Required) && value(field.property).toString().isEmpty();
    });
}

bool ItemDraft::hasUnreadable() const
{
    return std::any_of(m_fields.begin(), m_fields.end(), [this](const ItemField &field) {
        return !FieldText::isUnderstood(field, value(field.property));
    });
}

void ItemDraft::writeTo(PMListItem &item) const
{
    for (const ItemField &field : m_fields) {
        QVariant value = this->value(field.property);
        // What the browser changed in the meantime is not set back.
        if (!m_isNew && value == m_original.value(field.property))
            continue;
        if (field.form == ItemField::Link)
            value = FieldRules::completeUrl(value.toString());
        writeProperty(item, field.property, value);
    }
    deriveFields(item);
}
