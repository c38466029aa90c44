#pragma once

#include "PMListItem.h"

#include <QVector>

class GPMAppSettings;

/// One field of a kind of item, as pages and editors show it.
struct ItemField
{
    enum Form {
        Line,
        Multiline,
        Secret,
        Link,
        FillType,
        Date,
        Month, ///< a date of which year and month mean something
        Phone,
        Gender,
        CardType,
        Number
    };

    const char *property; ///< name of the item's property
    const char *label;    ///< to be translated, see itemFieldLabel()
    Form form = Line;
    bool required = false;
};

/// The fields of a kind in the order in which they are shown. The title, which stands above them,
/// is not among them; the note is the last.
const QVector<ItemField> &itemFields(PMListItem::Type type);

QString itemFieldLabel(const ItemField &field);

/// The value as a person reads it; empty when the field holds nothing.
QString itemFieldText(const PMListItem &item, const ItemField &field,
                      const GPMAppSettings &settings);

/// The words for what is done with a login on its page.
QString fillTypeText(int fillType, const GPMAppSettings &settings);
