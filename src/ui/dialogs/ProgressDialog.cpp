#include "ProgressDialog.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QProgressBar>

namespace {

const int usualWidth = 420;
const int smallestTextHeight = 36;
const int iconSize = 24;
const int steps = 1000; ///< a bar counts no bytes: they may be more than an int holds

} // namespace

ProgressDialog::ProgressDialog(const QString &title, const QString &text, const Theme &theme,
                               QWidget *parent)
    : FramedDialog(title, theme, parent)
    , m_theme(theme)
    , m_icon(new QLabel(this))
    , m_text(new MessageLabel(this))
    , m_bar(new QProgressBar(this))
    , m_way(makeButton({}, "plain", this))
    , m_close(makeButton(tr("Cancel"), "plain", this))
{
    setObjectName(QStringLiteral("progressDialog"));
    FramedDialog::setMinimumWidth(Style::scaled(usualWidth));
    m_text->setObjectName(QStringLiteral("progressText"));
    setStyleProperty(*m_text, "tone", QStringLiteral("text"));
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setFocusPolicy(Qt::NoFocus);
    m_icon->hide();
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setRange(0, 0);
    m_way->setObjectName(QStringLiteral("wayButton"));
    m_way->hide();
    m_close->setObjectName(QStringLiteral("closeButton"));
    connect(m_close, &QPushButton::clicked, this, &ProgressDialog::reject);
    connect(m_way, &QPushButton::clicked, this, [this] {
        accept();
        m_wayAtEnd.run();
    });
    setText(text);

    auto *line = new QHBoxLayout;
    line->setSpacing(Style::gap);
    line->addWidget(m_icon, 0, Qt::AlignTop);
    line->addWidget(m_text, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(m_way);
    buttons->addWidget(m_close);
    body().addLayout(line);
    body().addWidget(m_bar);
    body().addStretch();
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
    m_close->setFocus();
}

void ProgressDialog::setText(const QString &text)
{
    m_text->setMessage(text);
    const int icon = m_icon->isHidden() ? 0 : Style::scaled(iconSize) + Style::gap;
    keepTextHeight(*m_text, Style::scaled(usualWidth) - 2 * Style::margin - icon);
    m_text->setMinimumHeight(qMax(m_text->minimumHeight(), Style::scaled(smallestTextHeight)));
    setAccessibleDescription(text);
}

void ProgressDialog::setProgress(qint64 done, qint64 total)
{
    if (!m_running)
        return;
    m_bar->setRange(0, total > 0 ? steps : 0);
    if (total > 0)
        m_bar->setValue(int(double(qBound<qint64>(0, done, total)) * steps / double(total)));
}

void ProgressDialog::setCancellable(bool cancellable)
{
    m_cancellable = cancellable;
    if (m_running)
        m_close->setVisible(cancellable);
}

void ProgressDialog::finish()
{
    m_running = false;
    accept();
}

void ProgressDialog::tell(bool good, const QString &text, const Way &way)
{
    m_running = false;
    m_wayAtEnd = way;
    const QIcon icon = good ? m_theme.icon(QStringLiteral("circle-check"), Palette::Strong)
                            : m_theme.icon(QStringLiteral("alert-triangle"), Palette::Weak);
    const int size = Style::scaled(iconSize);
    m_icon->setPixmap(icon.pixmap(windowHandle(), QSize(size, size)));
    m_icon->setVisible(true);
    m_bar->hide();
    setText(text);
    m_way->setText(way.text);
    m_way->setVisible(way.run != nullptr);
    m_close->setText(tr("Close"));
    m_close->setEnabled(true);
    m_close->setVisible(true);
    m_close->setFocus();
    show();
    // The rows within still have the height that the former text took.
    layout()->activate();
    adjustSize();
    // A text that wraps asks for no height of its own.
    QDialog::setMinimumHeight(height());
}

void ProgressDialog::reject()
{
    if (!m_running) {
        QDialog::reject();
        return;
    }
    if (!m_cancellable || !m_close->isEnabled())
        return;
    m_close->setEnabled(false);
    setText(tr("Cancelling…"));
    Q_EMIT cancelRequested();
}
