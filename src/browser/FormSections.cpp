#include "FormSections.h"

#include "FieldPhrases.h"
#include "WordSets.h"

#include <algorithm>

namespace {

/// The fields below one heading.
struct Section
{
    int from = 0;
    int to = 0;
    bool hasName = false;
    bool hasAddress = false;
    bool hasEmail = false;
    bool hasPhone = false;
    /// Whether it asks for the name of something that is no person known.
    bool hasOtherName = false;
    /// Whether its heading speaks of nothing that the program knows.
    bool isStrange = false;
    /// Whether its heading says that it is about the user.
    bool isOwn = false;
};

/// Some pages write the caption of every field as a heading.
bool isCaption(int at, const QVector<FormField> &fields)
{
    const FormField &field = fields.at(at);
    const bool isSame = field.heading() == field.label() || field.heading() == field.textBefore();
    const bool isAlone = at + 1 == fields.size() || fields.at(at + 1).heading() != field.heading();
    return isSame && isAlone && !field.isRadio();
}

bool hasWordOf(const QString &heading, const WordSet &set)
{
    const QStringList words = wordsOf(heading);
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return set.contains(word); });
}

/// Whether nothing is known of what a heading names first: "host in the country".
bool isStrangeHeading(const QString &heading)
{
    if (hasWordOf(heading, headingWords()) || !hasStrangeWords(heading))
        return false;
    const TextMeaning meaning = meaningOf(heading, TextSort::Prose, QString());
    if (meaning.names(FieldKind::Password))
        return false;
    return meaning.parts.isEmpty() ||
           hasStrangeWords(
               wordsOf(heading).mid(0, meaning.parts.first().position).join(QLatin1Char(' ')));
}

void count(Section &section, FieldKind kind, const FieldReading &reading)
{
    section.hasName =
        section.hasName || kind == FieldKind::FirstName || kind == FieldKind::FullName;
    section.hasAddress = section.hasAddress || kind == FieldKind::AddressLine1 ||
                         kind == FieldKind::City || kind == FieldKind::PostalCode;
    section.hasEmail = section.hasEmail || kind == FieldKind::Email;
    section.hasPhone =
        section.hasPhone || (kind >= FieldKind::Phone && kind <= FieldKind::PhoneLine);
    section.hasOtherName =
        section.hasOtherName || (reading.isOfOther && (reading.says(FieldKind::SomeName) ||
                                                       reading.says(FieldKind::FullName)));
}

QVector<Section> sectionsOf(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                            const QVector<FieldKind> &kinds)
{
    QVector<Section> sections;
    QString heading;
    for (int i = 0; i < fields.size(); ++i) {
        const bool isNew = fields.at(i).heading() != heading && !isCaption(i, fields);
        if (sections.isEmpty() || isNew) {
            sections.append({i, i});
            heading = fields.at(i).heading();
        }
        sections.last().to = i + 1;
        count(sections.last(), kinds.at(i), readings.at(i));
    }
    for (Section &section : sections) {
        const QString &title = fields.at(section.from).heading();
        section.isStrange = isStrangeHeading(title);
        section.isOwn = hasWordOf(title, ownWords()) && !hasStrangeWords(title);
    }
    return sections;
}

/// Whether somebody could be reached by what it asks.
bool isReachable(const Section &section)
{
    return section.hasAddress || section.hasEmail;
}

/// Whether the section is of something else than those that plainly ask of the user.
bool isStrangeBesideKnown(const Section &section, const QVector<Section> &sections)
{
    bool hasName = false;
    bool hasMore = false;
    for (const Section &other : sections) {
        hasName = hasName || (!other.isStrange && other.hasName);
        hasMore = hasMore || (!other.isStrange && (isReachable(other) || other.hasPhone));
    }
    return section.isStrange && hasName && hasMore;
}

/// Whether it asks for somebody who cannot be reached, beside one who can.
bool isUnreachableBesideReachable(const Section &section, const QVector<Section> &sections)
{
    return !isReachable(section) && !section.isOwn && (section.hasName || section.hasOtherName) &&
           std::any_of(sections.begin(), sections.end(),
                       [](const Section &other) { return other.hasName && isReachable(other); });
}

/// What says where one works stands under any heading.
bool isOfWork(FieldKind kind)
{
    return kind == FieldKind::Company || kind == FieldKind::JobTitle;
}

/// "Place" beside a signature: a town alone, where another part asks for a whole address.
void leaveLoneTowns(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                    QVector<FieldKind> &kinds)
{
    if (!kinds.contains(FieldKind::AddressLine1))
        return;
    for (const Section &section : sectionsOf(fields, readings, kinds)) {
        int town = -1;
        int known = 0;
        for (int i = section.from; i < section.to; ++i) {
            known += isIdentityKind(kinds.at(i)) ? 1 : 0;
            town = kinds.at(i) == FieldKind::City && !readings.at(i).isTold ? i : town;
        }
        if (known == 1 && town >= 0 && kinds.count(FieldKind::City) > 1)
            kinds[town] = FieldKind::Other;
    }
}

} // namespace

void leaveOtherSections(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                        QVector<FieldKind> &kinds)
{
    for (const auto isOther : {isStrangeBesideKnown, isUnreachableBesideReachable}) {
        const QVector<Section> sections = sectionsOf(fields, readings, kinds);
        for (const Section &section : sections) {
            if (sections.size() < 2 || !isOther(section, sections))
                continue;
            for (int i = section.from; i < section.to; ++i) {
                const bool isLeft = isIdentityKind(kinds.at(i)) && !readings.at(i).isTold;
                if (isLeft && (section.hasName || !isOfWork(kinds.at(i))))
                    kinds[i] = FieldKind::Other;
            }
        }
    }
    leaveLoneTowns(fields, readings, kinds);
}
