#pragma once

#include "WizardPage.h"

#include <functional>

class PMTranslator;
class QListWidget;

/// Chooses the language of the program, which takes effect at once.
class LanguagePage : public WizardPage
{
    Q_OBJECT

public:
    /// @param current the name of the language that is shown
    /// @param choose switches to a language by its name; the window may be made anew by it
    LanguagePage(const PMTranslator &translator, const QString &current,
                 std::function<bool(const QString &)> choose, QWidget *parent);

    void takeFocus() override;

private:
    void onChosen();

    std::function<bool(const QString &)> m_choose;
    QString m_current;
    QListWidget *m_list;
};
