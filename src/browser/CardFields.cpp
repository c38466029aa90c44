#include "CardFields.h"

#include "FieldPhrases.h"
#include "WordSets.h"

#include <algorithm>

namespace {

/// The year stands no farther behind the month.
constexpr int farthestYear = 2;

} // namespace

void leaveLoneCards(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                    QVector<FieldKind> &kinds)
{
    bool isAlone = true;
    for (int i = 0; i < kinds.size(); ++i) {
        const bool isNumber = kinds.at(i) == FieldKind::CardNumber;
        if (isCardKind(kinds.at(i)) && !isNumber)
            return;
        isAlone = isAlone && (isNumber || !readings.at(i).hasText);
    }
    for (int i = 0; i < kinds.size() && !isAlone; ++i) {
        if (kinds.at(i) == FieldKind::CardNumber && !readings.at(i).isTold &&
            captionKindOf(fields.at(i).heading()) != CaptionKind::Card)
            kinds[i] = FieldKind::Other;
    }
}

void splitExpiry(const QVector<FormField> &fields, QVector<FieldKind> &kinds)
{
    static const WordSet months("mm мм");
    static const WordSet years("yy yyyy aa aaaa jj jjjj гг гггг");
    for (int i = 0; i < kinds.size(); ++i) {
        if (kinds.at(i) != FieldKind::CardMonth && kinds.at(i) != FieldKind::CardYear)
            continue;
        const QString shown = fields.at(i).placeholder().toLower();
        if (months.contains(shown))
            kinds[i] = FieldKind::CardMonth;
        else if (years.contains(shown))
            kinds[i] = FieldKind::CardYear;
    }
    for (int i = 0; i + 1 < kinds.size(); ++i) {
        if (kinds.at(i) != FieldKind::CardExpiry || kinds.at(i + 1) != FieldKind::CardExpiry)
            continue;
        kinds[i] = FieldKind::CardMonth;
        kinds[i + 1] = FieldKind::CardYear;
    }
}

void leaveGiftCards(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                    QVector<FieldKind> &kinds)
{
    static const QVector<FieldKind> figures = {FieldKind::CardNumber, FieldKind::CardCode};
    for (int from = 0; from < fields.size();) {
        int to = from;
        bool isOfCard = false;
        bool hasFigures = false;
        for (; to < fields.size() && fields.at(to).heading() == fields.at(from).heading(); ++to) {
            hasFigures = hasFigures || figures.contains(kinds.at(to));
            isOfCard = isOfCard || readings.at(to).isTold ||
                       (isCardKind(kinds.at(to)) && !figures.contains(kinds.at(to)));
        }
        const bool isGift = hasFigures && !isOfCard &&
                            meaningOf(fields.at(from).heading(), TextSort::Prose, QString())
                                .names(FieldKind::Never);
        for (int i = from; i < to && isGift; ++i) {
            if (figures.contains(kinds.at(i)))
                kinds[i] = FieldKind::Never;
        }
        from = to;
    }
}

void joinExpiry(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                QVector<FieldKind> &kinds)
{
    for (int i = 0; i < kinds.size(); ++i) {
        const bool isWhole = kinds.at(i) == FieldKind::CardMonth && fields.at(i).isLine() &&
                             readings.at(i).kind == FieldKind::CardExpiry &&
                             !readings.at(i).named.contains(FieldKind::SomeMonth) &&
                             fields.at(i).maxLength() != 2;
        const auto to = kinds.begin() + qMin(i + farthestYear + 1, kinds.size());
        if (isWhole && std::find(kinds.begin() + i, to, FieldKind::CardYear) == to)
            kinds[i] = FieldKind::CardExpiry;
    }
}
