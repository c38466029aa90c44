#include "SafeMenu.h"

#include "GPMAppCore.h"
#include "style/Theme.h"

#include <QActionGroup>
#include <QDir>

namespace {

/// "&" marks a key in the text of an action.
QString menuText(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

SafeMenu::SafeMenu(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : QMenu(parent)
    , m_core(core)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("safeMenu"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &SafeMenu::fill);
}

QVector<SafeMenu::Row> SafeMenu::rows() const
{
    const Row line{nullptr};
    return {
        {"createSafeAction", "plus", tr("Create new..."), &SafeMenu::createRequested},
        {"safesAction", "squares", tr("Safes…"), &SafeMenu::safesRequested},
        line,
        {"synchronizeAction", "refresh", tr("Synchronise now"), &SafeMenu::synchronizeRequested, "",
         [this] { return m_core.cloud().status().isOn(); }},
        {"bringOverAction", "file-import", tr("Bring passwords over…"),
         &SafeMenu::bringOverRequested},
        {"exportItemsAction", "file-export", tr("Export items…"), &SafeMenu::exportItemsRequested},
        {"exportSafeAction", "archive", tr("Export safe…"), &SafeMenu::exportSafeRequested},
        line,
        {"changePasswordAction", "key", tr("Change password…"), &SafeMenu::changePasswordRequested},
        {"lockAction", "lock", tr("Lock"), &SafeMenu::lockRequested, "Ctrl+L"},
    };
}

void SafeMenu::fill()
{
    clear();
    addSafes();
    addSeparator();
    for (const Row &row : rows())
        add(row);
}

void SafeMenu::addSafes()
{
    delete findChild<QActionGroup *>();
    auto *group = new QActionGroup(this);
    const KnownSafes &known = m_core.knownSafes();
    const QString current =
        m_core.currentSafe() ? known.listed(m_core.currentSafe()->folder()) : QString();
    const QVector<KnownSafes::Entry> entries = known.entries();
    for (const KnownSafes::Entry &entry : entries) {
        const QString name =
            entry.available ? entry.name : tr("%1 (not available)").arg(entry.name);
        QAction *action = addAction(menuText(name));
        action->setToolTip(QDir::toNativeSeparators(entry.folder));
        action->setCheckable(true);
        action->setChecked(entry.folder == current);
        action->setEnabled(entry.available);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, current, folder = entry.folder] {
            if (folder != current)
                Q_EMIT safeChosen(folder);
        });
    }
}

void SafeMenu::add(const Row &row)
{
    if (!row.name) {
        addSeparator();
        return;
    }
    const QString hint = QKeySequence(QLatin1String(row.keys)).toString(QKeySequence::NativeText);
    QAction *action = addAction(m_theme.icon(QLatin1String(row.icon), Palette::Text),
                                hint.isEmpty() ? row.text : row.text + QLatin1Char('\t') + hint,
                                this, row.signal);
    action->setObjectName(QLatin1String(row.name));
    action->setEnabled(!row.enabled || row.enabled());
}
