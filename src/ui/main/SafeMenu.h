#pragma once

#include "KnownSafes.h"

#include <QMenu>

#include <functional>

class GPMAppCore;
class Theme;

/// The menu of the open safe: the safes to switch to, and what can be done with this one and with
/// all of them. Filled whenever it opens.
class SafeMenu : public QMenu
{
    Q_OBJECT

public:
    SafeMenu(GPMAppCore &core, const Theme &theme, QWidget *parent);

Q_SIGNALS:
    void safeChosen(const QString &folder);
    void createRequested();
    void safesRequested();
    void exportSafeRequested();
    void bringOverRequested();
    void exportItemsRequested();
    void changePasswordRequested();
    void lockRequested();
    void synchronizeRequested();

private:
    /// One command about the open safe.
    struct Row
    {
        const char *name; ///< of the action; null: a line between groups
        const char *icon = "";
        QString text{};
        void (SafeMenu::*signal)() = nullptr;
        const char *keys = "";              ///< only told: they are the main view's
        std::function<bool()> enabled = {}; ///< always, when it is empty
    };

    QVector<Row> rows() const;
    void fill();
    void addSafes();
    void showEntry(QAction &action, const KnownSafes::Entry &entry) const;
    void renewSafes();
    void add(const Row &row);

    GPMAppCore &m_core;
    const Theme &m_theme;
};
