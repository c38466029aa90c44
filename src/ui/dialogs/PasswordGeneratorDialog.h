#pragma once

#include "PasswordGenerator.h"
#include "widgets/FramedDialog.h"

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

/// Makes passwords, shows how strong they are, and copies them or hands them to its caller.
class PasswordGeneratorDialog : public FramedDialog
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

    PasswordGeneratorDialog(const Parts &parts, const Theme &theme, QWidget *parent);
    ~PasswordGeneratorDialog() override;

    /// Says where "Place" puts the password.
    void setTarget(const PasswordTarget &target);

public Q_SLOTS:
    /// Looks again whether the password can be placed.
    void updatePlace();

protected:
    bool event(QEvent *event) override;

private:
    QWidget *makeField(const Theme &theme);
    QBoxLayout *makeNumbers(const Theme &theme);
    QBoxLayout *makeButtons(const Theme &theme);
    NumberBox *makeNumber(const Theme &theme, const char *name, const QString &label,
                          QBoxLayout &row);
    void generate();
    void copy(const QString &password);
    void place();
    void showRecent();
    QWidget *makeRecentRow(int index);

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
};
