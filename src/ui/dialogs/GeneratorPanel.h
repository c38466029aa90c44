#pragma once

#include "PasswordGenerator.h"

#include <QWidget>

#include <functional>

class ClipboardKeeper;
class GPMAppSettings;
class NumberBox;
class QBoxLayout;
class QLineEdit;
class QPushButton;
class RecentPasswords;
class StrengthMeter;
class Theme;
class UiSettings;

/// Where a generated password can go.
struct PasswordTarget
{
    std::function<void(const QString &)> place;
    /// Why it cannot be placed now; empty when it can.
    std::function<QString()> obstacle;
};

/// Makes passwords, shows how strong they are, and copies them or hands them to its caller. What
/// was chosen last is remembered.
class GeneratorPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the window works with; all of it outlives the window.
    struct Parts
    {
        UiSettings &uiSettings;
        const GPMAppSettings &settings;
        ClipboardKeeper &clipboard;
        RecentPasswords &recent;
        RandomBytes random;
    };

    /// Whether it also lists what was made last and has a button that closes its window.
    enum Extent { Whole, Small };

    GeneratorPanel(const Parts &parts, Extent extent, const Theme &theme, QWidget *parent);
    ~GeneratorPanel() override;

    /// Makes the first password, of the kind that was chosen last.
    void start();
    void takeFocus();
    /// Keeps what was chosen, and forgets the password.
    void finish();

    /// Says where "Place" puts the password.
    void setTarget(const PasswordTarget &target);

public Q_SLOTS:
    /// Looks again whether the password can be placed.
    void updatePlace();

Q_SIGNALS:
    void copied();
    void placed();
    void cancelled();
    /// Its height has changed.
    void grown();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeField(const Theme &theme);
    QBoxLayout *makeNumbers(const Theme &theme);
    QBoxLayout *makeButtons(Extent extent, const Theme &theme);
    NumberBox *makeNumber(const Theme &theme, const char *name, const QString &label,
                          QBoxLayout &row);
    void followNumbers();
    void generate();
    void copy(const QString &password);
    void place();
    void showRecent();
    QWidget *makeRecentRow(int index);

    void connectNumbers();

    Parts m_parts;
    const Theme &m_theme;
    PasswordTarget m_target;
    QLineEdit *m_password = nullptr;
    StrengthMeter *m_meter = nullptr;
    NumberBox *m_length = nullptr;
    NumberBox *m_specials = nullptr;
    QPushButton *m_recentButton = nullptr;
    QPushButton *m_place = nullptr;
    QWidget *m_recent = nullptr;
    int m_madeSpecials = 0;
    bool m_started = false;
};
