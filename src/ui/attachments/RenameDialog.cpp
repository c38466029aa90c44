#include "RenameDialog.h"

#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/TextField.h"

namespace {

const int fieldWidth = 360;

} // namespace

RenameDialog::RenameDialog(const QString &name, const Theme &theme, QWidget *parent,
                           const QString &captionText)
    : FramedDialog(tr("Rename"), theme, parent)
    , m_field(new TextField(name, this))
{
    setObjectName(QStringLiteral("renameDialog"));
    auto *caption = makeLabel(captionText.isEmpty() ? tr("File name") : captionText, "muted", this);
    caption->setBuddy(m_field);
    m_field->setObjectName(QStringLiteral("nameField"));
    m_field->setAccessibleName(caption->text());
    m_field->setMinimumWidth(Style::scaled(fieldWidth));
    // The ending, by which programs know the file, is seldom what is to be changed.
    const int dot = captionText.isEmpty() ? name.lastIndexOf(QLatin1Char('.')) : -1;
    m_field->setSelection(0, dot > 0 ? dot : name.size());
    auto *rename = makeButton(tr("Rename"), "primary", this);
    rename->setDefault(true);
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    connect(rename, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    const auto showState = [this, rename] {
        rename->setEnabled(!m_field->text().trimmed().isEmpty());
    };
    connect(m_field, &QLineEdit::textChanged, this, showState);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(rename);
    body().addWidget(caption);
    body().addWidget(m_field);
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
    m_field->setFocus();
}

QString RenameDialog::name() const
{
    return m_field->text();
}
