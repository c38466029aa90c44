#include "SafeItemEditor.h"

#include "FieldRules.h"
#include "FieldText.h"
#include "drafts/DraftDocument.h"
#include "main/ItemKinds.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QDebug>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>

#include <algorithm>

namespace {

const int pageMargin = 28;
const int columnGap = 14;
const int foldedNames = 4;

bool hasLongText(const QVector<ItemField> &fields)
{
    return std::any_of(fields.begin(), fields.end(),
                       [](const ItemField &field) { return field.form == ItemField::LongText; });
}

} // namespace

SafeItemEditor::SafeItemEditor(const GPMAppSettings &settings, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_context{settings, theme, EditorDefaults::fromLocale(QLocale::system()), QLocale::system()}
    , m_scroll(makeScrollArea(this))
{
    setObjectName(QStringLiteral("itemEditor"));
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(m_scroll);
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
    m_draft =
        ItemDraft(*item, QVector<ItemField>{itemTitleField()} + itemFields(item->type()), isNew);
    if (isNew && item->type() == PMListItem::Identity)
        m_draft.suggest("country", m_context.defaults.country);
    if (kept)
        restoreDraft(m_draft, *kept);
    makeRows(*item);
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
    m_inputs.clear();
    delete m_scroll->takeWidget();
    m_body = nullptr;
    m_column = nullptr;
    m_more = nullptr;
}

void SafeItemEditor::makeRows(const PMListItem &item)
{
    m_body = new QWidget;
    m_body->setObjectName(QStringLiteral("editorBody"));
    m_column = new QVBoxLayout(m_body);
    m_column->setContentsMargins(pageMargin, 24, pageMargin, 16);
    m_column->setSpacing(4);
    auto *heading = makeLabel(
        m_draft.isNew() ? newItemText(item.type())
                        //: the title of an item and its kind
                        : tr("Editing “%1” · %2").arg(item.title(), itemKindName(item.type())),
        "heading", m_body);
    heading->setObjectName(QStringLiteral("editorHeading"));
    heading->setWordWrap(true);
    m_column->addWidget(heading);
    m_column->addSpacing(Style::gap);
    QHBoxLayout *row = nullptr;
    for (const ItemField &field : m_draft.fields()) {
        if (!row || !field.has(ItemField::Beside)) {
            row = new QHBoxLayout;
            row->setSpacing(columnGap);
            m_column->addLayout(row, field.form == ItemField::LongText ? 1 : 0);
        }
        row->addWidget(addInput(field), 1);
    }
    addMoreButton();
    m_column->addStretch(hasLongText(m_draft.fields()) ? 0 : 1);
    showStoredFaults();
    m_scroll->setWidget(m_body);
}

FieldInput *SafeItemEditor::addInput(const ItemField &field)
{
    FieldInput *made = makeFieldInput(field, m_context, m_body);
    made->setValue(m_draft.value(field.property));
    connect(made, &FieldInput::edited, this, [this, made] { onEdited(*made); });
    connect(made, &FieldInput::copyRequested, this, &SafeItemEditor::copyRequested);
    connect(made, &FieldInput::openRequested, this, &SafeItemEditor::openRequested);
    connect(made, &FieldInput::generatorRequested, this, [this, made] {
        const auto place = [alive = QPointer<FieldInput>(made)](const QString &password) {
            if (!alive)
                return;
            alive->setValue(password);
            Q_EMIT alive->edited();
        };
        Q_EMIT generatorRequested(made, place);
    });
    m_inputs.append(made);
    return made;
}

void SafeItemEditor::addMoreButton()
{
    for (FieldInput *folded : qAsConst(m_inputs)) {
        if (folded->field().has(ItemField::Folded))
            folded->setVisible(
                !FieldText::isEmpty(folded->field(), m_draft.value(folded->field().property)));
    }
    const QString text = moreText();
    if (text.isEmpty())
        return;
    m_more = makeButton(text, "link", m_body);
    m_more->setObjectName(QStringLiteral("moreFieldsButton"));
    m_more->setIcon(m_context.theme.icon(QStringLiteral("plus"), Palette::Accent));
    connect(m_more, &QPushButton::clicked, this, &SafeItemEditor::showFolded);
    m_column->addWidget(m_more, 0, Qt::AlignLeft);
}

QString SafeItemEditor::moreText() const
{
    QStringList names;
    for (const FieldInput *folded : m_inputs) {
        if (folded->isHidden())
            names.append(itemFieldLabel(folded->field()));
    }
    if (names.isEmpty())
        return {};
    //: "small" where a language writes names inside a sentence small, else "as they are"
    if (tr("small") == QLatin1String("small")) {
        for (QString &name : names)
            name = name.toLower();
    }
    const bool all = names.size() <= foldedNames;
    const QString list = QStringList(names.mid(0, foldedNames)).join(tr(", "));
    //: names of fields
    return all ? tr("More fields: %1").arg(list) : tr("More fields: %1…").arg(list);
}

void SafeItemEditor::showFolded()
{
    FieldInput *first = nullptr;
    for (FieldInput *folded : qAsConst(m_inputs)) {
        if (!folded->isHidden())
            continue;
        folded->show();
        if (!first)
            first = folded;
    }
    if (first)
        first->control()->setFocus();
    m_more->hide();
}

void SafeItemEditor::onEdited(const FieldInput &edited)
{
    m_draft.setValue(edited.field().property, edited.value());
    showFault(*input(edited.field().property));
    // Which code is right depends on the card's number.
    FieldInput *code = input("code");
    if (code && code->hasFault() && edited.field().form == ItemField::CardNumber)
        showFault(*code);
    Q_EMIT modifiedChanged();
}

FieldInput *SafeItemEditor::input(const char *property) const
{
    for (FieldInput *each : m_inputs) {
        if (qstrcmp(each->field().property, property) == 0)
            return each;
    }
    return nullptr;
}

void SafeItemEditor::showFault(FieldInput &input)
{
    const ItemField &field = input.field();
    const QString cardNumber =
        field.rule == ItemField::CardCode ? m_draft.value("number").toString() : QString();
    input.setFault(FieldRules::message(field, m_draft.value(field.property), cardNumber));
}

void SafeItemEditor::takeFocus()
{
    if (m_inputs.isEmpty())
        return;
    QWidget *title = m_inputs.first()->control();
    title->setFocus();
    static_cast<QLineEdit *>(title)->end(false);
}

QWidget *SafeItemEditor::lastFocus() const
{
    QWidget *last = m_body;
    for (QWidget *next = m_body->nextInFocusChain(); m_body->isAncestorOf(next);
         next = next->nextInFocusChain()) {
        // Parts of a field that take no keyboard cannot stand in the order.
        if (next->focusPolicy() & Qt::TabFocus)
            last = next;
    }
    return last;
}

void SafeItemEditor::requestGenerator()
{
    FieldInput *password = input("password");
    if (!password)
        return;
    password->control()->setFocus();
    Q_EMIT password->generatorRequested();
}

void SafeItemEditor::showStoredFaults()
{
    // What is still empty is no fault before someone wants to save it.
    for (FieldInput *each : qAsConst(m_inputs)) {
        if (!FieldText::isEmpty(each->field(), m_draft.value(each->field().property)))
            showFault(*each);
    }
}

void SafeItemEditor::showFaults()
{
    for (FieldInput *each : qAsConst(m_inputs))
        showFault(*each);
    for (const FieldInput *each : qAsConst(m_inputs)) {
        if (!each->hasFault())
            continue;
        each->control()->setFocus();
        m_scroll->ensureWidgetVisible(each->control());
        return;
    }
}
