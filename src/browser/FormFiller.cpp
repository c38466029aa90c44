#include "FormFiller.h"

#include "FormField.h"

#include <QJsonArray>

namespace {

const FieldRule *ruleFor(const FormField &field, const FieldDispatcher &dispatcher)
{
    if (dispatcher.gate && dispatcher.gate(field) <= 0.0F)
        return nullptr;
    for (const FieldRule &rule : dispatcher.rules) {
        if (rule.score(field) > 0.0F)
            return &rule;
    }
    return nullptr;
}

FilledForm fillFields(const QString &formUid, const QJsonArray &fields,
                      const FieldDispatcher &dispatcher)
{
    FilledForm form;
    form.formUid = formUid;
    for (const QJsonValue &entry : fields) {
        if (!entry.isObject())
            continue;
        const FormField field(entry.toObject());
        const FieldRule *rule = ruleFor(field, dispatcher);
        if (!rule || rule->value.isEmpty())
            continue;
        form.fields.append({field.opid(), field.gpmid(), rule->value});
        form.hasPassword = form.hasPassword || rule->isPassword;
    }
    return form;
}

} // namespace

QVector<FilledForm> fillForms(const QJsonObject &page, const FieldDispatcher &dispatcher)
{
    QVector<FilledForm> filled;
    const auto add = [&](const FilledForm &form) {
        if (!form.fields.isEmpty())
            filled.append(form);
    };
    const QJsonArray forms = page.value(QLatin1String("forms")).toArray();
    for (const QJsonValue &entry : forms) {
        const QJsonObject form = entry.toObject();
        add(fillFields(form.value(QLatin1String("formUid")).toString(),
                       form.value(QLatin1String("fields")).toArray(), dispatcher));
    }
    add(fillFields(QStringLiteral("none"), page.value(QLatin1String("elements")).toArray(),
                   dispatcher));
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
