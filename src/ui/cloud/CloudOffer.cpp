#include "CloudOffer.h"

#include "CloudFolders.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QEvent>

CloudOffer::CloudOffer(CloudFolders &folders, const Theme &theme, Ground ground, QWidget *parent)
    : QWidget(parent)
    , m_folders(folders)
    , m_text(makeLabel({}, "plain", this))
    , m_button(makeButton(tr("Bring it over…"), "plain", this))
{
    setObjectName(QStringLiteral("cloudOffer"));
    m_text->setObjectName(QStringLiteral("cloudOfferText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_button->setObjectName(QStringLiteral("cloudOfferButton"));
    m_button->setIcon(ground == Dark
                          ? theme.lockIcon(QStringLiteral("cloud-down"), Palette::SidebarText)
                          : theme.icon(QStringLiteral("cloud-down"), Palette::Text));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, Style::margin);
    column->setSpacing(Style::spacing);
    column->addWidget(m_text);
    column->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, &CloudOffer::importRequested);
    connect(&m_folders, &CloudFolders::changed, this, &CloudOffer::showState);
    showState();
}

void CloudOffer::look()
{
    m_folders.look();
}

void CloudOffer::showState()
{
    const QVector<MirroredSafe> &offers = m_folders.found().offers;
    setVisible(!offers.isEmpty());
    if (!offers.isEmpty())
        m_text->setText(
            offers.size() == 1
                ? tr("You have a safe in your cloud folder: “%1”.").arg(offers.first().name)
                : tr("You have %n safes in your cloud folder.", nullptr, offers.size()));
}

bool CloudOffer::event(QEvent *event)
{
    // The cloud program may have brought it while the user was elsewhere.
    if (event->type() == QEvent::WindowActivate && parentWidget()->isVisible())
        look();
    return QWidget::event(event);
}
