#include "OtherPeople.h"

#include "AddressFields.h"
#include "FieldPhrases.h"
#include "WordSets.h"

#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// What the kinds have in common that are asked for once of a person.
FieldKind groupOf(FieldKind kind)
{
    switch (kind) {
    case FieldKind::FirstName:
    case FieldKind::LastName:
    case FieldKind::FullName:
    case FieldKind::SomeName:
        return FieldKind::FullName;
    case FieldKind::Email:
    case FieldKind::Phone:
        return kind;
    default:
        return FieldKind::Unknown;
    }
}

/// Whether the form transfers money: who receives it is somebody else.
bool isTransfer(const QVector<FieldReading> &readings)
{
    return std::any_of(readings.begin(), readings.end(), [](const FieldReading &reading) {
        return reading.says(FieldKind::BankAccount);
    });
}

/// Whom a part of a form is about.
enum class Part { User, Recipient, Stranger };

/// The number of somebody or something further.
const QRegularExpression &furtherNumber()
{
    static const QRegularExpression number(QStringLiteral("(?<!\\d)[2-9](?!\\d)"));
    return number;
}

/// What the page's code calls a field.
QString codeName(const FormField &field)
{
    return field.name().isEmpty() ? field.id() : field.name();
}

/// "Passenger 2" where there is a "Passenger 1".
bool isFurther(const QString &heading, const QStringList &headings)
{
    const QRegularExpressionMatch found = furtherNumber().match(heading);
    if (!found.hasMatch())
        return false;
    QString first = heading;
    first.replace(found.capturedStart(), 1, QLatin1Char('1'));
    return headings.contains(first);
}

Part partOf(const QString &heading, const QStringList &headings)
{
    Part part = isFurther(heading, headings) ? Part::Stranger : Part::User;
    const QStringList words = wordsOf(heading);
    for (const QString &word : words) {
        if (strangerWords().contains(word))
            return Part::Stranger;
        if (recipientWords().contains(word) && part == Part::User)
            part = Part::Recipient;
    }
    return part;
}

/// Whom each field's part of the form is about.
QVector<Part> partsOf(const QVector<FormField> &fields)
{
    QStringList headings;
    for (const FormField &field : fields) {
        const QString heading = field.heading();
        if (headings.isEmpty() || headings.last() != heading)
            headings.append(heading);
    }
    QHash<QString, Part> known;
    for (const QString &heading : qAsConst(headings)) {
        if (!known.contains(heading))
            known.insert(heading, partOf(heading, headings));
    }
    QVector<Part> parts;
    parts.reserve(fields.size());
    for (const FormField &field : fields)
        parts.append(known.value(field.heading()));
    return parts;
}

bool isPhone(FieldKind kind)
{
    return kind >= FieldKind::Phone && kind <= FieldKind::PhoneLine;
}

/// Whether no further part of the number stands behind it.
bool isWholePhone(FieldKind kind)
{
    return kind == FieldKind::Phone || kind == FieldKind::PhoneNumber ||
           kind == FieldKind::PhoneLine;
}

/// Whether it is asked for by a word of which the program keeps numbers apart.
bool isOwnPhone(const FormField &field)
{
    static const QRegularExpression words(
        QString::fromUtf8("mobil|cell|handy|móvil|movil|celular|portable|мобильн|сотов|home|"
                          "privat|business|work|office|geschäft|dienst|trabajo|oficina|bureau|"
                          "travail|рабоч|домашн|casa|festnetz|fijo|fixe|landline"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList texts = field.readTexts();
    if (texts.join(QString()).isEmpty())
        texts << field.name() << field.id();
    return std::any_of(texts.begin(), texts.end(),
                       [&](const QString &text) { return words.match(text).hasMatch(); });
}

} // namespace

void leaveOtherPeople(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                      QVector<FieldKind> &kinds)
{
    const QVector<Part> parts = partsOf(fields);
    const auto isOfRecipient = [&](int i) {
        return readings.at(i).isOfRecipient || parts.at(i) == Part::Recipient;
    };
    QVector<FieldKind> own;
    bool hasRecipient = false;
    for (int i = 0; i < kinds.size(); ++i) {
        if (parts.at(i) == Part::Stranger && isIdentityKind(kinds.at(i)))
            kinds[i] = FieldKind::Other;
        hasRecipient = hasRecipient || isOfRecipient(i);
        if (!isOfRecipient(i) && !own.contains(groupOf(kinds.at(i))))
            own.append(groupOf(kinds.at(i)));
    }
    if (!hasRecipient)
        return;
    bool isOfOther = isTransfer(readings);
    for (int i = 0; i < kinds.size(); ++i)
        isOfOther = isOfOther || (isOfRecipient(i) && kinds.at(i) == FieldKind::Email &&
                                  own.contains(FieldKind::Email));
    for (int i = 0; i < kinds.size(); ++i) {
        const FieldKind group = groupOf(kinds.at(i));
        if (isOfRecipient(i) && group != FieldKind::Unknown && (isOfOther || own.contains(group)))
            kinds[i] = FieldKind::Other;
    }
}

void leaveNumberedPeople(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                         QVector<FieldKind> &kinds)
{
    QHash<QString, FieldKind> firsts;
    QMap<QString, QVector<int>> people; // by what their fields' names have in common
    for (int i = 0; i < fields.size(); ++i) {
        const QString name = codeName(fields.at(i));
        const QRegularExpressionMatch number = furtherNumber().match(name);
        if (!number.hasMatch()) {
            firsts.insert(name, readings.at(i).kind);
            continue;
        }
        QString first = name;
        first.replace(number.capturedStart(), 1, QLatin1Char('1'));
        if (firsts.value(first) == readings.at(i).kind && isIdentityKind(readings.at(i).kind))
            people[number.captured()].append(i);
    }
    for (const QVector<int> &person : qAsConst(people)) {
        const bool hasName = std::any_of(person.begin(), person.end(), [&](int i) {
            return groupOf(readings.at(i).kind) == FieldKind::FullName;
        });
        for (int i : person) {
            if (hasName && !readings.at(i).isTold)
                kinds[i] = FieldKind::Other;
        }
    }
}

void leaveLoneName(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds)
{
    int only = -1;
    for (int i = 0; i < kinds.size(); ++i) {
        if (isCardKind(kinds.at(i)))
            return;
        if (!isIdentityKind(kinds.at(i)))
            continue;
        if (only >= 0)
            return;
        only = i;
    }
    if (only < 0 || readings.at(only).isTold)
        return;
    const bool isPlainName =
        kinds.at(only) == FieldKind::FullName && readings.at(only).kind == FieldKind::SomeName;
    if (isPlainName || readings.at(only).isOfRecipient)
        kinds[only] = FieldKind::Other;
}

void leaveFurtherNames(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds)
{
    const int most = addressesIn(kinds);
    int people = 0;
    int families = 0;
    QSet<FieldKind> known;
    QString others;
    bool isOther = false;
    for (int i = 0; i < kinds.size(); ++i) {
        const FieldKind kind = kinds.at(i);
        const QString &heading = fields.at(i).heading();
        const bool isPerson = kind == FieldKind::FullName || kind == FieldKind::FirstName;
        // Who was asked for both names is not asked for the whole under the same heading.
        const bool isWhole = kind == FieldKind::FullName && known.contains(FieldKind::FirstName) &&
                             known.contains(FieldKind::LastName) && heading == others;
        const bool isFurther = (isPerson && (++people > most || isWhole)) ||
                               (kind == FieldKind::LastName && ++families > most);
        isOther = isFurther || (isOther && !isPerson && heading == others);
        others = heading;
        // What reaches somebody else stands behind the name.
        const bool isRepeated = isIdentityKind(kind) && known.contains(kind);
        if ((isFurther || (isOther && isRepeated)) && !readings.at(i).isTold)
            kinds[i] = FieldKind::Other;
        known.insert(kinds.at(i));
    }
}

bool leavesLastName(const QVector<FieldReading> &readings)
{
    return std::any_of(readings.begin(), readings.end(), [](const FieldReading &reading) {
        return reading.kind == FieldKind::Other && reading.says(FieldKind::LastName);
    });
}

bool asksForLastName(const QVector<FieldReading> &readings, const QVector<FieldKind> &kinds)
{
    return kinds.contains(FieldKind::LastName) || leavesLastName(readings);
}

void readWholeNames(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds)
{
    const bool hasLast = asksForLastName(readings, kinds);
    for (int i = 0; i < kinds.size() && !hasLast; ++i) {
        const bool isNamed = readings.at(i).also.contains(FieldKind::SomeName);
        if (kinds.at(i) == FieldKind::FirstName && isNamed && !readings.at(i).isTold)
            kinds[i] = FieldKind::FullName;
    }
    // Whose family's and father's names are asked for beside it gives the first alone.
    const int whole = kinds.indexOf(FieldKind::FullName);
    const bool hasRest =
        kinds.contains(FieldKind::LastName) && kinds.contains(FieldKind::MiddleName);
    if (whole >= 0 && hasRest && !kinds.contains(FieldKind::FirstName) &&
        kinds.count(FieldKind::FullName) == 1)
        kinds[whole] = FieldKind::FirstName;
    // What reads "name" and is a user's in code is either, where one signs in with it.
    const bool isSignIn =
        !kinds.contains(FieldKind::LastName) &&
        (kinds.contains(FieldKind::CurrentPassword) || kinds.contains(FieldKind::Password));
    for (int i = 0; i < kinds.size() && isSignIn; ++i) {
        const bool isName = kinds.at(i) == FieldKind::FirstName;
        if (isName && !readings.at(i).isTold && readings.at(i).also.contains(FieldKind::UserName))
            kinds[i] = FieldKind::Other;
    }
}

void leaveFurtherPhones(const QVector<FormField> &fields, QVector<FieldKind> &kinds)
{
    const int most = addressesIn(kinds);
    int count = 0;
    bool isFirstOwn = false;
    for (int i = 0; i < kinds.size();) {
        const int from = i;
        while (i < kinds.size() && isPhone(kinds.at(i)) &&
               (i == from || !isWholePhone(kinds.at(i - 1))))
            ++i;
        if (i == from) {
            ++i;
            continue;
        }
        // A question about the number is answered from a list.
        if ((kinds.at(from) != FieldKind::PhoneCode || i - from > 1) &&
            (fields.at(from).isLine() || i - from > 1))
            ++count;
        isFirstOwn = count == 1 ? isOwnPhone(fields.at(from)) : isFirstOwn;
        // Twice the same name in code, and one label: the parts of a number, of unknown lengths.
        const bool isTwin = i - from == 1 && i < kinds.size() && isPhone(kinds.at(i)) &&
                            !fields.at(from).name().isEmpty() &&
                            fields.at(i).name() == fields.at(from).name() &&
                            fields.at(i).readTexts().join(QString()).isEmpty();
        if (isTwin)
            kinds[from] = FieldKind::Other;
        if (count > most && !(isFirstOwn && isOwnPhone(fields.at(from))))
            std::fill(kinds.begin() + from, kinds.begin() + i, FieldKind::Other);
    }
}

void leaveFurtherBirths(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                        QVector<FieldKind> &kinds)
{
    for (int i = kinds.indexOf(FieldKind::Gender) + 1; i > 0 && i < kinds.size(); ++i) {
        if (kinds.at(i) == FieldKind::Gender && fields.at(i).isSelect() && !readings.at(i).hasText)
            kinds[i] = FieldKind::Other;
    }
    for (int i = kinds.indexOf(FieldKind::BirthDate) + 1; i > 0 && i < kinds.size(); ++i) {
        if (kinds.at(i) == FieldKind::BirthDate && !readings.at(i).isTold)
            kinds[i] = FieldKind::Other;
    }
}

void leaveFurtherMail(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds)
{
    bool isNamed = false;
    for (int i = 0; i < kinds.size(); ++i)
        isNamed = isNamed || (kinds.at(i) == FieldKind::Email && !readings.at(i).isStrange);
    for (int i = 0; i < kinds.size() && isNamed; ++i) {
        if (kinds.at(i) == FieldKind::Email && readings.at(i).isStrange && !readings.at(i).isTold &&
            readings.at(i).named.isEmpty())
            kinds[i] = FieldKind::Other;
    }
}
