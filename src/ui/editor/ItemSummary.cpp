#include "ItemSummary.h"

#include "PMListItem.h"

#include <QVariant>
#include <QVector>

namespace {

const int shownEnd = 4;

struct Source
{
    const char *property;
    bool isNumber; ///< only its end is shown
};

/// The properties that name an item, the best one first.
const QVector<Source> &sources(PMListItem::Type type)
{
    static const QVector<Source> all[] = {
        {{"login", false}},
        {{"number", true}, {"bank", false}},
        {{"bankName", false}, {"iban", true}, {"number", true}},
        {{"email", false}, {"city", false}, {"company", false}},
        {{"number", true}, {"country", false}},
        {{"name", false}},
        {{"number", true}, {"country", false}},
        {},
        {{"username", false}, {"server", false}},
        {{"version", false}},
        {{"filename", false}},
        {},
    };
    return all[qBound<int>(PMListItem::Login, type, PMListItem::UndefinedItem)];
}

/// "•••• 4444". Nothing of a number so short that its end would be most of it.
QString numberEnd(const QString &number)
{
    QString letters;
    for (const QChar letter : number) {
        if (letter.isLetterOrNumber())
            letters.append(letter);
    }
    const int end = letters.size() >= 2 * shownEnd ? shownEnd : 0;
    return end == 0 ? QString()
                    : QString(shownEnd, QChar(0x2022)) + QLatin1Char(' ') + letters.right(end);
}

} // namespace

QString itemSummary(const PMListItem &item)
{
    for (const Source &source : sources(item.type())) {
        const QString value = item.property(source.property).toString().simplified();
        QString shown = source.isNumber ? numberEnd(value) : value;
        if (!shown.isEmpty())
            return shown;
    }
    return {};
}
