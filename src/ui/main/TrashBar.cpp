#include "TrashBar.h"

#include "style/Style.h"
#include "widgets/Controls.h"

TrashBar::TrashBar(QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 12, 4);
    row->setSpacing(Style::spacing);
    auto *restore = makeButton(tr("Restore all"), "plain", this);
    restore->setObjectName(QStringLiteral("restoreAllButton"));
    auto *empty = makeButton(tr("Empty trash"), "plain", this);
    empty->setObjectName(QStringLiteral("emptyTrashButton"));
    row->addWidget(restore, 1);
    row->addWidget(empty, 1);
    connect(restore, &QPushButton::clicked, this, &TrashBar::restoreRequested);
    connect(empty, &QPushButton::clicked, this, &TrashBar::emptyRequested);
}
