#include "NewVersionDialog.h"

#include "style/Style.h"
#include "widgets/Controls.h"

#include <QScrollArea>

namespace {

const int usualWidth = 440;
const int mostTextHeight = 180;

/// The news in a card, which scrolls when they are long.
QWidget *makeNews(const QString &text, QWidget *parent)
{
    auto *label = makeLabel(text, "text", parent);
    label->setObjectName(QStringLiteral("newVersionText"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *card = makeCard(parent);
    auto *area = makeScrollArea(card);
    area->setObjectName(QStringLiteral("newVersionNews"));
    area->setAccessibleName(NewVersionDialog::tr("What is new"));
    area->setWidget(label);
    auto *inside = new QVBoxLayout(card);
    inside->setContentsMargins(Style::gap, Style::gap, Style::gap, Style::gap);
    inside->addWidget(area);
    label->ensurePolished(); // its font decides how high it is
    const int inner = Style::scaled(usualWidth) - 2 * (Style::margin + Style::gap + 1);
    area->setFixedHeight(qMin(label->heightForWidth(inner), Style::scaled(mostTextHeight)));
    return card;
}

} // namespace

NewVersionDialog::NewVersionDialog(const UpdateNews &news, const QString &current,
                                   const Theme &theme, QWidget *parent)
    : FramedDialog(tr("New version"), theme, parent)
{
    setObjectName(QStringLiteral("newVersionDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    FramedDialog::setFixedWidth(Style::scaled(usualWidth));
    auto *heading = makeLabel(tr("Version %1 is here").arg(news.version), "heading", this);
    auto *text = makeLabel(tr("You have version %1. Your safes and settings stay as they are when "
                              "you install the new one.")
                               .arg(current),
                           "text", this);
    // Who is led somewhere sees where to.
    auto *place = makeLabel(
        tr("The page is on %1 and opens in your browser.").arg(news.page.host(QUrl::FullyEncoded)),
        "muted", this);
    for (QLabel *label : {heading, text, place}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        keepTextHeight(*label, Style::scaled(usualWidth) - 2 * Style::margin);
    }
    auto *later = makeButton(tr("Later"), "plain", this);
    later->setObjectName(QStringLiteral("laterButton"));
    auto *open = makeButton(tr("Open the download page"), "primary", this);
    open->setObjectName(QStringLiteral("openPageButton"));
    open->setDefault(true);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(later);
    buttons->addWidget(open);
    body().addWidget(heading);
    body().addWidget(text);
    if (!news.text.isEmpty())
        body().addWidget(makeNews(news.text, this));
    body().addWidget(place);
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(open, &QPushButton::clicked, this, [this, page = news.page] {
        Q_EMIT pageRequested(page);
        accept();
    });
    open->setFocus();
}
