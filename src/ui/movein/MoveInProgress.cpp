#include "MoveInProgress.h"

#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QProgressBar>

MoveInProgress::MoveInProgress(QWidget *parent)
    : QWidget(parent)
    , m_text(new MessageLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(makeButton(tr("Cancel"), "plain", this))
{
    setStyleProperty(*m_text, "tone", QStringLiteral("text"));
    m_text->setObjectName(QStringLiteral("moveInWork"));
    m_bar->setObjectName(QStringLiteral("moveInBar"));
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setObjectName(QStringLiteral("cancelWorkButton"));
    connect(m_cancel, &QPushButton::clicked, this, &MoveInProgress::cancel);
    auto *foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(m_cancel);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addStretch();
    all->addWidget(m_text);
    all->addWidget(m_bar);
    all->addStretch();
    all->addLayout(foot);
}

void MoveInProgress::begin(const QString &text)
{
    m_text->setMessage(text);
    m_bar->setRange(0, 0);
    m_cancel->setEnabled(true);
}

void MoveInProgress::setProgress(const QString &text, int done, int total)
{
    // It is not told again and again: the bar says how far it is.
    if (m_cancel->isEnabled())
        m_text->setText(text);
    m_bar->setRange(0, total);
    m_bar->setValue(done);
}

void MoveInProgress::takeFocus()
{
    m_cancel->setFocus();
}

void MoveInProgress::cancel()
{
    if (!m_cancel->isEnabled())
        return;
    m_cancel->setEnabled(false);
    m_text->setMessage(tr("Cancelling…"));
    Q_EMIT cancelRequested();
}
