#include "FormFiller.h"

#include "FormAnalysis.h"
#include "PageFields.h"

#include <QJsonArray>

namespace {

bool isPassword(FieldKind kind)
{
    return kind == FieldKind::Password || kind == FieldKind::NewPassword;
}

} // namespace

QVector<FilledForm> fillForms(const QJsonObject &page, FillAction action, const ValueAt &valueAt)
{
    const QString language = page.value(QLatin1String("language")).toString();
    QVector<FilledForm> filled;
    PatternTests patterns;
    PageLimits left;
    const auto add = [&](const QString &formUid, const QJsonObject &form) {
        const auto fields = fieldsOf(form.value(QLatin1String("fields")).toArray(), left);
        const auto kinds = analyseForm(fields, FormSurroundings::of(form, page), action);
        FilledForm result;
        result.formUid = formUid;
        for (int i = 0; i < fields.size(); ++i) {
            if (kinds.at(i) == FieldKind::Unknown)
                continue;
            const QString value = valueAt({fields, kinds, i, language, patterns});
            if (value.isEmpty())
                continue;
            result.fields.append({fields.at(i).opid(), fields.at(i).gpmid(), value});
            result.hasPassword = result.hasPassword || isPassword(kinds.at(i));
        }
        if (!result.fields.isEmpty())
            filled.append(result);
    };
    const QJsonArray forms = page.value(QLatin1String("forms")).toArray();
    for (const QJsonValue &entry : forms) {
        const QJsonObject form = entry.toObject();
        add(form.value(QLatin1String("formUid")).toString(), form);
    }
    const QString loose = QStringLiteral("none");
    add(loose, {{QStringLiteral("fields"), page.value(QLatin1String("elements"))}});
    return filled;
}

QJsonObject toFillInstruction(const FilledForm &form)
{
    QJsonArray elements;
    for (const FilledForm::Field &field : form.fields) {
        elements.append(QJsonObject{{QStringLiteral("opid"), field.opid},
                                    {QStringLiteral("gpmid"), field.gpmid},
                                    {QStringLiteral("value"), field.value}});
    }
    return {{QStringLiteral("formUid"), form.formUid}, {QStringLiteral("elements"), elements}};
}
