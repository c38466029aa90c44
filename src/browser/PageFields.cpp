#include "PageFields.h"

QVector<FormField> fieldsOf(const QJsonArray &entries, PageLimits &left)
{
    QVector<FormField> fields;
    fields.reserve(qMin(entries.size(), left.fields));
    for (int i = 0; i < entries.size() && left.fields > 0 && left.letters > 0; ++i) {
        const QJsonValue entry = entries.at(i);
        if (!entry.isObject())
            continue;
        FormField field(entry.toObject());
        left.options -= field.limitOptions(left.options);
        left.letters -= field.letters();
        fields.append(std::move(field));
        --left.fields;
    }
    return fields;
}
