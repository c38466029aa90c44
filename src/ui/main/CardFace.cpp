#include "CardFace.h"

#include "PMCreditCard.h"
#include "editor/CardNumber.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/BrandMark.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>

namespace {

const int faceHeight = 150;
const int sideMargin = 22;
const int topMargin = 16;
const qreal corner = 12;
const char copiedText[] = "copiedText";

/// "01 / 27", as cards have it.
QString faceDate(const PMFieldTypes::Date &date)
{
    if (date.year == 0 || date.month == 0)
        return {};
    const QLatin1Char zero('0');
    return QStringLiteral("%1 / %2").arg(date.month, 2, 10, zero).arg(date.year % 100, 2, 10, zero);
}

} // namespace

CardFace::CardFace(const PMCreditCard &card, const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("cardFace"));
    setFixedHeight(Style::scaled(faceHeight));
    auto *mark = new BrandMark(this);
    mark->setOnColor(true);
    mark->setBrand(card.cardType());
    mark->setFixedSize(mark->sizeHint());
    auto *number = addText(CardNumber::grouped(card.number()), CardNumber::digits(card.number()),
                           "cardNumber");
    QFont figures = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    number->setStyleSheet(QStringLiteral("font-family: '%1';").arg(figures.family()));

    auto *top = new QHBoxLayout;
    top->addWidget(addText(card.bank(), card.bank(), "heading"), 1);
    top->addWidget(mark);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(addText(card.cardholder(), card.cardholder(), "value"), 1);
    const QString date = faceDate(card.expire());
    bottom->addWidget(addText(date, date, "value"));
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(sideMargin, topMargin, sideMargin, topMargin);
    all->addLayout(top);
    all->addStretch();
    all->addWidget(number);
    all->addStretch();
    all->addLayout(bottom);
}

ElidedLabel *CardFace::addText(const QString &text, const QString &copied, const char *tone)
{
    auto *label = new ElidedLabel(tone, this);
    label->setFullText(text);
    label->setProperty(copiedText, copied);
    if (!copied.isEmpty()) {
        label->setCursor(Qt::PointingHandCursor);
        label->setToolTip(tr("Click to copy"));
    }
    return label;
}

void CardFace::mouseReleaseEvent(QMouseEvent *event)
{
    const QWidget *at = childAt(event->pos());
    const QString copied = at ? at->property(copiedText).toString() : QString();
    if (event->button() == Qt::LeftButton && !copied.isEmpty())
        Q_EMIT copyRequested(copied);
}

void CardFace::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(rect().topLeft(), rect().bottomRight());
    ground.setColorAt(0, m_theme.palette().color(Palette::CardStart));
    ground.setColorAt(1, m_theme.palette().color(Palette::CardEnd));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), corner, corner);
}
