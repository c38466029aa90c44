#include "ItemDraft.h"

#include "FieldRules.h"
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

/// What lists show of a login follows from its fields.
void deriveFields(PMListItem &item)
{
    auto *login = qobject_cast<PMLogin *>(&item);
    if (!login)
        return;
    login->setSecondaryText(login->login());
    const int level = passwordStrengthLevel(login->password());
    login->setStrength(static_cast<PMFieldTypes::PasswordStrength>(level));
}

} // namespace

ItemDraft::ItemDraft(const PMListItem &item, const QVector<ItemField> &fields, bool isNew)
    : m_fields(fields)
    , m_isNew(isNew)
{
    for (const ItemField &field : fields) {
        const QVariant value = item.property(field.property);
        // Editors choose enumerations by number.
        m_original.insert(field.property,
                          field.form == ItemField::FillType ? QVariant(value.toInt()) : value);
    }
    m_values = m_original;
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
        return field.required && value(field.property).toString().isEmpty();
    });
}

void ItemDraft::writeTo(PMListItem &item) const
{
    for (const ItemField &field : m_fields) {
        QVariant value = this->value(field.property);
        if (field.form == ItemField::Link)
            value = FieldRules::completeUrl(value.toString());
        writeProperty(item, field.property, value);
    }
    deriveFields(item);
}
