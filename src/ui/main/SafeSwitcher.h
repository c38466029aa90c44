#pragma once

#include "KnownSafes.h"

#include <QPushButton>

#include <functional>

class ElidedLabel;
class QLabel;
class QMenu;
class Theme;

/// Shows which safe is open, and leads to the other ones through its menu.
class SafeSwitcher : public QPushButton
{
    Q_OBJECT

public:
    using Entries = std::function<QVector<KnownSafes::Entry>()>;

    SafeSwitcher(const Theme &theme, QWidget *parent);

    /// @param folder that of the open safe
    void setSafe(const QString &name, const QString &folder);
    void setState(const QString &state);
    /// Asked whenever the menu opens.
    void setEntries(const Entries &entries) { m_entries = entries; }

Q_SIGNALS:
    void safeChosen(const QString &folder);
    void createRequested();
    void lockRequested();

private:
    void fillMenu();
    void describe();

    const Theme &m_theme;
    Entries m_entries;
    QString m_folder;
    ElidedLabel *m_name;
    ElidedLabel *m_state;
    QMenu *m_menu;
};
