#include "ChoiceButtons.h"

#include "FieldOptions.h"

#include <QHash>

namespace {

/// What can be chosen among the buttons of one name, by all that is known of them.
struct Choices
{
    QStringList labels;
    QStringList behind;
    QStringList values;
    /// Whether a word asks for the gender.
    bool isAsked = false;
};

bool areDistinct(const QStringList &texts)
{
    return texts.size() > 1 && !texts.contains(QString()) &&
           QSet<QString>(texts.begin(), texts.end()).size() == texts.size();
}

/// What a person reads counts where it tells the buttons apart; else what the page writes of them.
bool isGender(const Choices &choices)
{
    for (const QStringList &texts : {choices.labels, choices.behind}) {
        if (areDistinct(texts) && (areSexes(texts) || !choices.isAsked))
            return areSexes(texts);
    }
    return areSexes(choices.values);
}

} // namespace

QSet<QString> gendersOf(const QVector<FormField> &fields, const QVector<FieldReading> &readings)
{
    QHash<QString, Choices> byName;
    for (int i = 0; i < fields.size(); ++i) {
        const FormField &field = fields.at(i);
        if (!field.isRadio())
            continue;
        Choices &choices = byName[field.name()];
        choices.labels.append(field.label());
        choices.behind.append(field.textAfter());
        choices.values.append(field.value());
        choices.isAsked = choices.isAsked || readings.at(i).says(FieldKind::Gender);
    }
    QSet<QString> names;
    for (auto it = byName.constBegin(); it != byName.constEnd(); ++it) {
        if (isGender(*it))
            names.insert(it.key());
    }
    return names;
}
