#include "UpdatePanel.h"

#include "GPMUpdateChecker.h"
#include "backups/BackupTexts.h"
#include "style/Style.h"
#include "widgets/Controls.h"

#include <utility>

UpdatePanel::UpdatePanel(GPMUpdateChecker &checker, QWidget *parent, Clock clock)
    : QWidget(parent)
    , m_checker(checker)
    , m_clock(std::move(clock))
    , m_headline(makeLabel({}, "plain", this))
    , m_detail(makeLabel({}, "muted", this))
    , m_show(makeButton(tr("Show…"), "plain", this))
    , m_check(makeButton(tr("Check now"), "plain", this))
{
    setObjectName(QStringLiteral("updatePanel"));
    m_headline->setObjectName(QStringLiteral("updateHeadline"));
    m_detail->setObjectName(QStringLiteral("updateDetail"));
    m_show->setObjectName(QStringLiteral("showNewVersionButton"));
    m_show->setAccessibleName(tr("Show the new version"));
    m_check->setObjectName(QStringLiteral("checkNowButton"));
    m_check->setAccessibleName(tr("Check for a newer version now"));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    for (QLabel *label : {m_headline, m_detail}) {
        label->setWordWrap(true);
        texts->addWidget(label);
    }
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins({});
    line->setSpacing(Style::spacing);
    line->addLayout(texts, 1);
    line->addWidget(m_show);
    line->addWidget(m_check);
    m_check->setVisible(checker.hasEndpoint());
    connect(m_show, &QPushButton::clicked, this, &UpdatePanel::newsRequested);
    connect(m_check, &QPushButton::clicked, &checker, &GPMUpdateChecker::checkNow);
    connect(&checker, &GPMUpdateChecker::stateChanged, this, &UpdatePanel::showState);
    showState();
}

void UpdatePanel::showState()
{
    m_headline->setText(headline());
    m_detail->setText(detail());
    m_show->setVisible(!m_checker.news().version.isEmpty());
    // Not disabled while it asks: the keyboard's place would be lost.
    setStyleProperty(*m_detail, "tone",
                     m_checker.state() == GPMUpdateChecker::Failed ? QStringLiteral("error")
                                                                   : QStringLiteral("muted"));
}

QString UpdatePanel::headline() const
{
    if (!m_checker.news().version.isEmpty())
        return tr("Version %1 is here").arg(m_checker.news().version);
    if (m_checker.state() == GPMUpdateChecker::UpToDate)
        return tr("You have the newest version, %1").arg(m_checker.version());
    return tr("You have version %1").arg(m_checker.version());
}

QString UpdatePanel::detail() const
{
    if (!m_checker.hasEndpoint())
        return tr("This program was built without an address to ask for newer versions, so it "
                  "never looks for them.");
    if (m_checker.state() == GPMUpdateChecker::Asking)
        return tr("Checking…");
    if (m_checker.state() == GPMUpdateChecker::Failed)
        return tr("There was no answer that could be used. Check the connection to the internet "
                  "and try again.");
    const QDateTime last = m_checker.lastCheck();
    return last.isValid() ? tr("Last checked: %1").arg(BackupTexts::moment(last, m_clock(), true))
                          : tr("Not checked yet");
}
