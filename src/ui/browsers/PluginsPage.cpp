#include "PluginsPage.h"

#include "style/Style.h"
#include "widgets/Announcer.h"
#include "widgets/Controls.h"

#include <algorithm>
#include <utility>

namespace {

const int iconSide = 32;
const int linkMs = 1000;
const int lookMs = 5000; ///< files of other programs are read

QString iconOf(const BrowserInfo &browser)
{
    return browser.isFirefox() ? QStringLiteral(":/icons/browsers/firefox.png")
                               : QStringLiteral(":/icons/browsers/chrome.png");
}

} // namespace

PluginsPage::PluginsPage(const Parts &parts, QWidget *parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_rows(new QVBoxLayout)
    , m_none(makeLabel({}, "muted", this))
    , m_state(makeLabel({}, "muted", this))
{
    m_state->setObjectName(QStringLiteral("extensionState"));
    m_state->setWordWrap(true);
    m_none->setObjectName(QStringLiteral("noBrowser"));
    m_none->setWordWrap(true);
    m_rows->setSpacing(Style::spacing);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::gap);
    all->addLayout(m_rows);
    all->addWidget(m_none);
    all->addWidget(m_state);
    connect(&parts.watch, &BrowserWatch::changed, this, &PluginsPage::showBrowsers);
    m_linkTimer.setInterval(linkMs);
    connect(&m_linkTimer, &QTimer::timeout, this, &PluginsPage::showConnection);
    m_lookTimer.setInterval(lookMs);
    connect(&m_lookTimer, &QTimer::timeout, this, &PluginsPage::look);
    m_bundle = parts.connectedBundle();
    showBrowsers();
    showConnection();
}

void PluginsPage::look()
{
    m_parts.watch.look();
}

void PluginsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    look();
    showConnection();
    m_lookTimer.start();
    m_linkTimer.start();
}

void PluginsPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_lookTimer.stop();
    m_linkTimer.stop();
}

void PluginsPage::showBrowsers()
{
    for (QWidget *row : std::exchange(m_shown, {})) {
        row->hide();
        row->deleteLater(); // its button may have led here
    }
    for (const BrowserInfo &browser : m_parts.watch.browsers()) {
        m_shown.append(makeRow(browser));
        m_rows->addWidget(m_shown.last());
    }
    m_none->setText(m_parts.watch.hasLooked()
                        ? tr("No browser was found that the extension is made for: Chrome, "
                             "Chromium or Firefox.")
                        : tr("Looking for browsers…"));
    m_none->setVisible(m_shown.isEmpty());
}

void PluginsPage::showConnection()
{
    const QString bundle = m_parts.connectedBundle();
    const bool isOther = std::exchange(m_bundle, bundle) != bundle;
    const QString text = isConnected()
                             ? tr("A browser is connected.")
                             : tr("No browser is connected yet. It shows here when it is.");
    if (!isOther && m_state->text() == text)
        return;
    m_state->setText(text);
    Announcer::announce(*m_state, text);
    showBrowsers();
    Q_EMIT connectedChanged();
}

bool PluginsPage::isConnectedTo(const BrowserInfo &browser) const
{
    if (m_bundle.isEmpty())
        return false;
    const bool isFirefox = m_bundle.contains(QLatin1String("firefox"));
    const QVector<BrowserInfo> &all = m_parts.watch.browsers();
    // The extension cannot tell browsers of one kind apart.
    const auto likely = [&](bool installed) {
        return std::count_if(all.begin(), all.end(), [&](const BrowserInfo &other) {
            return other.isFirefox() == isFirefox && (!installed || other.hasExtension());
        });
    };
    if (browser.isFirefox() != isFirefox)
        return false;
    return likely(false) == 1 || (likely(true) == 1 && browser.hasExtension());
}

QWidget *PluginsPage::makeRow(const BrowserInfo &browser)
{
    auto *row = new QWidget(this);
    row->setObjectName(browser.kind + QStringLiteral("Row"));
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    line->setSpacing(Style::gap);
    auto *icon = new QLabel(row);
    icon->setPixmap(QIcon(iconOf(browser)).pixmap(iconSide, iconSide));
    line->addWidget(icon);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(makeLabel(browser.name, "plain", row));
    if (browser.isDefault)
        texts->addWidget(makeLabel(tr("Opens your web links"), "muted", row));
    line->addLayout(texts, 1);
    const bool connected = isConnectedTo(browser);
    if (browser.hasExtension() || connected) {
        const QString installed = tr("Installed %1").arg(browser.extensionVersion).trimmed();
        auto *state = makeLabel(!browser.hasExtension() ? tr("Connected")
                                : connected             ? tr("%1, connected").arg(installed)
                                                        : installed,
                                "plain", row);
        state->setObjectName(browser.kind + QStringLiteral("State"));
        line->addWidget(state);
        return row;
    }
    auto *install = makeButton(tr("Install Plugin"), browser.isDefault ? "primary" : "plain", row);
    install->setObjectName(browser.kind + QStringLiteral("Install"));
    install->setAccessibleName(tr("Install Plugin: %1").arg(browser.name));
    connect(install, &QPushButton::clicked, this,
            [this, browser] { m_parts.install(browser, this); });
    line->addWidget(install);
    return row;
}
