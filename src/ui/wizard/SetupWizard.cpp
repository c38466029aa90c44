#include "SetupWizard.h"

#include "StepDots.h"
#include "WizardPage.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QScreen>
#include <QStackedWidget>

namespace {

const QSize usualSize(560, 620);
const int columnWidth = 440;

} // namespace

SetupWizard::SetupWizard(const QVector<WizardStep> &steps, const Theme &theme, QWidget *parent)
    : FramedDialog(tr("Set up Glaceron Password Manager"), theme, parent)
    , m_dots(new StepDots(theme, this))
    , m_title(makeLabel({}, "title", this))
    , m_sentence(makeLabel({}, "muted", this))
    , m_pages(new QStackedWidget(this))
    , m_back(makeButton(tr("Back"), "plain", this))
    , m_skip(makeButton(tr("Skip"), "link", this))
    , m_onward(makeButton({}, "primary", this))
{
    setObjectName(QStringLiteral("SetupWizard"));
    for (const WizardStep &step : steps) {
        if (!step.exists())
            continue;
        m_steps.append(step);
        WizardPage *page = step.make(m_pages);
        m_pages->addWidget(page);
        connect(page, &WizardPage::changed, this, &SetupWizard::showButtons);
    }
    layOut();
    connect(m_back, &QPushButton::clicked, this, [this] { showStep(m_pages->currentIndex() - 1); });
    connect(m_skip, &QPushButton::clicked, this, [this] { showStep(m_pages->currentIndex() + 1); });
    connect(m_onward, &QPushButton::clicked, this, &SetupWizard::goOn);
    // Return in a field presses it.
    m_onward->setDefault(true);
    // The pages hold texts whose lines break; smaller than this they would be cut.
    const QSize size(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    // On a small screen they scroll instead.
    const int room = screen()->availableSize().height() - 2 * Style::margin;
    setMinimumSize(size.width(), qMin(size.height(), room));
    resize(size.width(), qMin(size.height(), room));
    showStep(0);
}

void SetupWizard::layOut()
{
    m_title->setAlignment(Qt::AlignHCenter);
    m_title->setWordWrap(true);
    m_title->setObjectName(QStringLiteral("wizardTitle"));
    m_sentence->setAlignment(Qt::AlignHCenter);
    m_sentence->setWordWrap(true);
    m_back->setObjectName(QStringLiteral("wizardBack"));
    m_skip->setObjectName(QStringLiteral("wizardSkip"));
    m_onward->setObjectName(QStringLiteral("wizardOnward"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_back);
    buttons->addStretch();
    buttons->addWidget(m_skip);
    buttons->addWidget(m_onward);
    auto *frame = new QWidget(this);
    frame->setFixedWidth(Style::scaled(columnWidth));
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_dots);
    column->addSpacing(Style::margin + Style::spacing);
    column->addWidget(m_title);
    column->addSpacing(Style::spacing);
    column->addWidget(m_sentence);
    column->addSpacing(Style::margin);
    auto *scroll = makeScrollArea(frame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(m_pages);
    // Both would be painted in the system's colour.
    scroll->viewport()->setAutoFillBackground(false);
    m_pages->setAutoFillBackground(false);
    column->addWidget(scroll, 1);
    column->addSpacing(Style::margin);
    column->addLayout(buttons);
    auto *middle = new QHBoxLayout;
    middle->addStretch();
    middle->addWidget(frame);
    middle->addStretch();
    body().addLayout(middle, 1);
    body().setContentsMargins(Style::margin, Style::spacing, Style::margin, 28);
    setTabOrder(m_pages, m_onward);
    setTabOrder(m_onward, m_skip);
    setTabOrder(m_skip, m_back);
}

WizardPage &SetupWizard::page() const
{
    return *static_cast<WizardPage *>(m_pages->currentWidget());
}

QString SetupWizard::step() const
{
    return QLatin1String(m_steps.at(m_pages->currentIndex()).id);
}

void SetupWizard::goTo(const QString &id)
{
    for (int i = 0; i < m_steps.size(); ++i) {
        if (QLatin1String(m_steps.at(i).id) == id)
            showStep(i);
    }
}

void SetupWizard::showStep(int index)
{
    page().clearSecrets();
    m_pages->setCurrentIndex(index);
    const WizardStep &step = m_steps.at(index);
    m_dots->setStep(index, m_steps.size());
    m_title->setText(step.title);
    m_sentence->setText(step.sentence);
    setAccessibleDescription(step.title);
    showButtons();
    m_onward->setFocus();
    page().takeFocus();
}

void SetupWizard::showButtons()
{
    const int index = m_pages->currentIndex();
    const bool last = index + 1 == m_steps.size();
    const QString own = page().onward();
    m_onward->setText(!own.isEmpty() ? own : last ? tr("Done") : tr("Next"));
    m_onward->setEnabled(page().canGoOn());
    m_back->setVisible(index > 0);
    m_skip->setVisible(!last && page().canSkip());
}

void SetupWizard::goOn()
{
    if (!page().goOn())
        return;
    if (m_pages->currentIndex() + 1 < m_steps.size()) {
        showStep(m_pages->currentIndex() + 1);
        return;
    }
    Q_EMIT completed();
    accept();
}

void SetupWizard::showEvent(QShowEvent *event)
{
    FramedDialog::showEvent(event);
    page().takeFocus();
}

void SetupWizard::done(int result)
{
    page().clearSecrets();
    FramedDialog::done(result);
}
