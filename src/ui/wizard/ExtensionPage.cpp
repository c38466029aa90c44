#include "ExtensionPage.h"

#include "style/Style.h"
#include "widgets/Controls.h"

ExtensionPage::ExtensionPage(const PluginsPage::Parts &parts, QWidget *parent)
    : WizardPage(parent)
{
    auto *card = makeCard(this);
    auto *inside = new QVBoxLayout(card);
    inside->setContentsMargins(Style::margin, Style::gap, Style::margin, Style::gap);
    auto *plugins = new PluginsPage(parts, card);
    inside->addWidget(plugins);
    auto *later = makeLabel(tr("You can install plugin later from application Settings window"),
                            "muted", this);
    later->setAlignment(Qt::AlignHCenter);
    later->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Style::gap);
    column->addWidget(card);
    column->addWidget(later);
    column->addStretch();
    connect(plugins, &PluginsPage::connectedChanged, this, &WizardPage::changed);
}
