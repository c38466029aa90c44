#include "SafeItemEditor.h"

#include "FieldRules.h"
#include "GPMAppSettings.h"
#include "PMFieldTypes.h"
#include "PasswordStrength.h"
#include "drafts/DraftDocument.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/PasswordField.h"
#include "widgets/SelectBox.h"
#include "widgets/StrengthMeter.h"
#include "widgets/TextField.h"

#include <QBoxLayout>
#include <QDebug>
#include <QPlainTextEdit>
#include <QScrollArea>

namespace {

const int pageMargin = 28;
const int noteHeight = 96;

const ItemField titleField = {"title", QT_TRANSLATE_NOOP("ItemFields", "Title"), ItemField::Line,
                              true};

} // namespace

SafeItemEditor::SafeItemEditor(const GPMAppSettings &settings, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_theme(theme)
    , m_scroll(new QScrollArea(this))
{
    setObjectName(QStringLiteral("itemEditor"));
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(m_scroll);
}

bool SafeItemEditor::canEdit(PMListItem::Type type)
{
    return type == PMListItem::Login;
}

void SafeItemEditor::setItem(const PMListItem *item, bool isNew, const KeptDraft *kept)
{
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    clearRows();
    m_draft = ItemDraft();
    if (!item)
        return;
    connect(item, &QObject::destroyed, this, &SafeItemEditor::onDestroyed);
    m_draft = ItemDraft(*item, QVector<ItemField>{titleField} + itemFields(item->type()), isNew);
    if (kept)
        restoreDraft(m_draft, *kept);

    m_body = new QWidget;
    m_body->setObjectName(QStringLiteral("editorBody"));
    m_column = new QVBoxLayout(m_body);
    m_column->setContentsMargins(pageMargin, 24, pageMargin, 16);
    m_column->setSpacing(4);
    m_column->addWidget(makeLabel(isNew ? tr("New login") : tr("Edit login"), "title", m_body));
    m_column->addSpacing(Style::gap);
    for (const ItemField &field : m_draft.fields())
        addRow(field);
    m_column->addStretch();
    m_scroll->setWidget(m_body);
    for (int i = 1; i < m_rows.size(); ++i)
        setTabOrder(m_rows.at(i - 1).input, m_rows.at(i).input);
}

void SafeItemEditor::onDestroyed()
{
    qDebug() << "Item destroyed (maybe on lock), invoke setItem(emptyItem)";
    m_item = nullptr;
    setItem(nullptr, false);
    Q_EMIT itemGone();
}

void SafeItemEditor::clearRows()
{
    // At once: what was typed must not stay on the screen until the next turn of the event loop.
    m_rows.clear();
    delete m_scroll->takeWidget();
    m_body = nullptr;
    m_column = nullptr;
}

void SafeItemEditor::addRow(const ItemField &field)
{
    const QString label = itemFieldLabel(field);
    auto *caption = makeLabel(label, "muted", m_body);
    m_column->addWidget(caption);
    Row row{field, makeInput(field), makeLabel({}, "error", m_body)};
    row.input->setObjectName(QLatin1String(field.property) + QStringLiteral("Field"));
    row.input->setAccessibleName(label);
    caption->setBuddy(row.input);
    row.message->setObjectName(QLatin1String(field.property) + QStringLiteral("Message"));
    row.message->setMinimumHeight(18);
    if (field.form == ItemField::Secret) {
        auto *meter = new StrengthMeter(m_theme, m_body);
        auto *line = static_cast<PasswordField *>(row.input);
        const auto show = [meter](const QString &text) {
            meter->setLevel(text.isEmpty() ? 0 : passwordStrengthLevel(text));
        };
        connect(line, &QLineEdit::textChanged, meter, show);
        show(line->text());
        m_column->addWidget(row.input);
        m_column->addWidget(meter, 0, Qt::AlignLeft);
        row.message->hide();
        m_column->addSpacing(4);
    } else {
        m_column->addWidget(row.input);
        m_column->addWidget(row.message);
    }
    m_rows.append(row);
}

QWidget *SafeItemEditor::makeInput(const ItemField &field)
{
    switch (field.form) {
    case ItemField::Secret:
        return makeSecret(field);
    case ItemField::FillType:
        return makeFillType(field);
    case ItemField::Multiline:
        return makeMultiline(field);
    default:
        return makeLine(field);
    }
}

QWidget *SafeItemEditor::makeLine(const ItemField &field)
{
    auto *line = new TextField(m_draft.value(field.property).toString(), m_body);
    if (field.form == ItemField::Link)
        line->setPlaceholderText(QStringLiteral("https://"));
    connect(line, &QLineEdit::textChanged, this,
            [this, field](const QString &text) { onEdited(field, text); });
    return line;
}

QWidget *SafeItemEditor::makeSecret(const ItemField &field)
{
    auto *line = new PasswordField(m_theme.icon(QStringLiteral("eye"), Palette::Muted),
                                   m_theme.icon(QStringLiteral("eye-off"), Palette::Muted), m_body);
    line->setText(m_draft.value(field.property).toString());
    connect(line, &QLineEdit::textChanged, this,
            [this, field](const QString &text) { onEdited(field, text); });
    return line;
}

QWidget *SafeItemEditor::makeFillType(const ItemField &field)
{
    auto *box = new SelectBox(m_theme.icon(QStringLiteral("chevron-down"), Palette::Muted), m_body);
    using Type = PMFieldTypes::LoginFillType;
    for (const Type type : {Type::GlobalSettings, Type::FillAndSubmit, Type::OnlyFill})
        box->addItem(fillTypeText(static_cast<int>(type), m_settings), static_cast<int>(type));
    box->setCurrentIndex(box->findData(m_draft.value(field.property)));
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, field, box] { onEdited(field, box->currentData()); });
    return box;
}

QWidget *SafeItemEditor::makeMultiline(const ItemField &field)
{
    auto *text = new QPlainTextEdit(m_draft.value(field.property).toString(), m_body);
    text->setTabChangesFocus(true);
    text->setFixedHeight(noteHeight);
    connect(text, &QPlainTextEdit::textChanged, this,
            [this, field, text] { onEdited(field, text->toPlainText()); });
    return text;
}

void SafeItemEditor::onEdited(const ItemField &field, const QVariant &value)
{
    m_draft.setValue(field.property, value);
    for (const Row &row : qAsConst(m_rows)) {
        if (row.field.property == field.property)
            showFault(row);
    }
    Q_EMIT modifiedChanged();
}

void SafeItemEditor::showFault(const Row &row)
{
    const QString fault = FieldRules::message(row.field, m_draft.value(row.field.property));
    row.message->setText(fault);
    setStyleProperty(*row.input, "wrong", !fault.isEmpty());
}

void SafeItemEditor::takeFocus()
{
    if (!m_rows.isEmpty())
        m_rows.first().input->setFocus();
}

void SafeItemEditor::showFaults()
{
    for (const Row &row : qAsConst(m_rows))
        showFault(row);
    for (const Row &row : qAsConst(m_rows)) {
        if (row.message->text().isEmpty())
            continue;
        row.input->setFocus();
        m_scroll->ensureWidgetVisible(row.input);
        return;
    }
}
