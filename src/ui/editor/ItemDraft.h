#pragma once

#include "main/ItemFields.h"

#include <QMap>
#include <QVariant>

/// The values of an item's fields while they are edited. The item itself stays as it is until the
/// draft is written to it.
class ItemDraft
{
public:
    /// Nothing is edited.
    ItemDraft() = default;
    /// @param isNew whether the item is still to come into the safe
    ItemDraft(const PMListItem &item, const QVector<ItemField> &fields, bool isNew);

    const QVector<ItemField> &fields() const { return m_fields; }
    bool isNew() const { return m_isNew; }

    QVariant value(const char *property) const { return m_values.value(property); }
    void setValue(const char *property, const QVariant &value);

    /// What the editor suggests for a field; it does not count as a change.
    void suggest(const char *property, const QVariant &value);

    bool isModified() const { return m_values != m_original; }
    bool hasEmptyRequired() const;
    /// Whether a value was typed that the item cannot keep, as a date that is none.
    bool hasUnreadable() const;

    /// Sets the item's properties, and those that follow from them. A property that cannot be set
    /// is logged.
    void writeTo(PMListItem &item) const;

private:
    using Values = QMap<QByteArray, QVariant>;

    QVector<ItemField> m_fields;
    Values m_original;
    Values m_values;
    bool m_isNew = false;
};
