#include "CopyNotice.h"

#include "ClipboardKeeper.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Announcer.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QBoxLayout>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

#include <utility>

namespace {

const int plainNoticeMs = 4000;

} // namespace

CopyNotice::CopyNotice(ClipboardKeeper &clipboard, const Theme &theme, QWidget *parent, Clock clock)
    : QWidget(parent)
    , m_theme(theme)
    , m_clock(std::move(clock))
    , m_icon(new QLabel(this))
    , m_text(new ElidedLabel("notice", this))
    , m_seconds(makeLabel({}, "label", this))
{
    setObjectName(QStringLiteral("copyNotice"));
    m_text->setFullText(tr("Value copied to clipboard"));
    m_text->setObjectName(QStringLiteral("copyNoticeText"));
    const QSize size(Style::iconSize, Style::iconSize);
    const auto showIcon = [this, &theme, size] {
        m_icon->setPixmap(theme.icon(QStringLiteral("circle-check"), Palette::Strong)
                              .pixmap(window()->windowHandle(), size));
    };
    showIcon();
    connect(&theme, &Theme::changed, this, showIcon);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(m_text);
    texts->addWidget(m_seconds);
    texts->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(Style::spacing);
    row->addWidget(m_icon);
    row->addLayout(texts, 1);
    m_tick.setInterval(1000);
    connect(&m_tick, &QTimer::timeout, this, &CopyNotice::onTick);
    connect(&clipboard, &ClipboardKeeper::copied, this, &CopyNotice::onCopied);
    connect(&clipboard, &ClipboardKeeper::cleared, this, &CopyNotice::dismiss);
    hide();
}

int CopyNotice::secondsLeft() const
{
    // The clock of an earlier copy that still runs clears a later one, too.
    const QDateTime now = m_clock();
    for (const QDateTime &deadline : m_deadlines) {
        if (deadline > now)
            return static_cast<int>((now.msecsTo(deadline) + 999) / 1000);
    }
    return 0;
}

void CopyNotice::onCopied(bool clearLater)
{
    const QDateTime now = m_clock();
    while (!m_deadlines.isEmpty() && m_deadlines.first() <= now)
        m_deadlines.removeFirst();
    if (clearLater)
        m_deadlines.append(now.addMSecs(ClipboardKeeper::keepMs));
    m_until = now.addMSecs(plainNoticeMs);
    showSeconds();
    if (isHidden())
        easeIn();
    m_tick.start();
    setAccessibleName({});
    Announcer::announce(*this, m_text->accessibleName());
}

void CopyNotice::easeIn()
{
    show();
    const int time = m_theme.motion(Style::popUpMs);
    if (time == 0 || !isVisible())
        return;
    auto *effect = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(effect);
    auto *fade = new QPropertyAnimation(effect, "opacity", effect);
    fade->setDuration(time);
    fade->setEasingCurve(QEasingCurve::OutCubic);
    fade->setStartValue(0.0);
    fade->setEndValue(1.0);
    // Without the effect texts are drawn sharper.
    connect(
        fade, &QPropertyAnimation::finished, this, [this] { setGraphicsEffect(nullptr); },
        Qt::QueuedConnection);
    fade->start();
}

void CopyNotice::onTick()
{
    if (secondsLeft() == 0 && m_clock() >= m_until)
        dismiss();
    else
        showSeconds();
}

void CopyNotice::showSeconds()
{
    const int seconds = secondsLeft();
    m_seconds->setText(tr("clears in %1 s").arg(seconds));
    m_seconds->setVisible(seconds > 0);
}

void CopyNotice::dismiss()
{
    m_tick.stop();
    hide();
}
