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
    connect(&core.knownSafes(), &KnownSafes::changed, this, &SafeMenu::renewSafes);
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
        QAction *action = addAction(QString());
        showEntry(*action, entry);
        action->setToolTip(QDir::toNativeSeparators(entry.folder));
        action->setCheckable(true);
        action->setData(entry.folder);
        action->setChecked(entry.folder == current);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, current, folder = entry.folder] {
            if (folder != current)
                Q_EMIT safeChosen(folder);
        });
    }
}

void SafeMenu::showEntry(QAction &action, const KnownSafes::Entry &entry) const
{
    const QString name = entry.looking     ? tr("%1 (looking…)")
                         : entry.available ? QStringLiteral("%1")
                                           : tr("%1 (not available)");
    action.setText(menuText(name.arg(entry.name)));
    action.setEnabled(entry.available);
}

/// In their places: nothing moves below the pointer.
void SafeMenu::renewSafes()
{
    if (!isVisible())
        return;
    const QVector<KnownSafes::Entry> entries = m_core.knownSafes().entries();
    const QList<QAction *> all = actions();
    for (const KnownSafes::Entry &entry : entries) {
        for (QAction *action : all) {
            if (action->data().toString() == entry.folder)
                showEntry(*action, entry);
        }
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
