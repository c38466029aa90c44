#include "SettingRow.h"

#include "HotkeyLineEdit.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/MessageLabel.h"
#include "widgets/NumberBox.h"
#include "widgets/SelectBox.h"
#include "widgets/Toggle.h"

#include <QDir>
#include <QPointer>

#include <algorithm>

namespace {

const int fieldWidth = 168;
const int numberWidth = 104;

} // namespace

SettingRow::SettingRow(const Setting &setting, const Help &help, QWidget *parent)
    : QWidget(parent)
    , m_setting(setting)
    , m_help(help)
    , m_label(makeLabel(setting.label, "plain", this))
    , m_explanation(makeLabel(setting.explanation, "muted", this))
    , m_fault(new MessageLabel(this))
{
    setObjectName(QLatin1String(setting.id) + QStringLiteral("Row"));
    QWidget *editor = makeEditor();
    m_control->setObjectName(QLatin1String(setting.id));
    describe();
    layOut(editor);
    refresh();
}

QWidget *SettingRow::makeEditor()
{
    static QWidget *(SettingRow::*const makers[])() = {
        &SettingRow::makeSwitch, &SettingRow::makeNumber, &SettingRow::makeChoice,
        &SettingRow::makeFolder, &SettingRow::makeHotkey, &SettingRow::makePanel};
    return (this->*makers[m_setting.editor])();
}

QWidget *SettingRow::makeSwitch()
{
    auto *toggle = new Toggle(m_help.theme, this);
    m_show = [toggle](const QVariant &value) { toggle->setChecked(value.toBool()); };
    connect(toggle, &QAbstractButton::clicked, this, [this](bool on) { apply(on); });
    m_control = toggle;
    return toggle;
}

QWidget *SettingRow::makeNumber()
{
    auto *box =
        new NumberBox(m_help.theme.icon(QStringLiteral("chevron-up"), Palette::Muted),
                      m_help.theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this);
    box->setRange(m_setting.least, m_setting.most);
    box->setSuffix(m_setting.unit);
    // A number is meant when it is complete, not at each of its digits.
    box->setKeyboardTracking(false);
    box->setFixedWidth(Style::scaled(numberWidth));
    m_show = [box](const QVariant &value) {
        const QSignalBlocker quiet(box);
        box->setValue(value.toInt());
    };
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { apply(value); });
    m_control = box;
    return box;
}

QWidget *SettingRow::makeChoice()
{
    auto *box =
        new SelectBox(m_help.theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this);
    for (const Setting::Option &option : qAsConst(m_setting.options))
        box->addItem(option.text, option.value);
    box->setMinimumWidth(Style::scaled(fieldWidth));
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_show = [box](const QVariant &value) {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(box->findData(value));
    };
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, box] { apply(box->currentData()); });
    m_control = box;
    return box;
}

QWidget *SettingRow::makeFolder()
{
    auto *frame = new QWidget(this);
    auto *path = new ElidedLabel("muted", frame);
    path->setObjectName(QLatin1String(m_setting.id) + QStringLiteral("Text"));
    QPushButton *choose = makeButton(tr("Choose…"), "plain", frame);
    m_show = [path](const QVariant &value) {
        const QString native = QDir::toNativeSeparators(value.toString());
        path->setFullText(native.isEmpty() ? tr("none chosen") : native);
        path->setToolTip(native);
    };
    connect(choose, &QPushButton::clicked, this, [this] {
        // A lock closes the settings while the user is choosing.
        const QPointer<SettingRow> alive(this);
        const QString chosen = m_help.chooseFolder(this, m_setting.value().toString());
        if (alive && !chosen.isEmpty())
            apply(QDir::toNativeSeparators(chosen));
    });
    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins({});
    row->setSpacing(Style::gap);
    row->addWidget(path, 1);
    row->addWidget(choose);
    m_control = choose;
    return frame;
}

QWidget *SettingRow::makeHotkey()
{
    const char *id = m_setting.id;
    auto *field = new HotkeyLineEdit([taken = m_help.takenKeys, id] { return taken(id); }, this);
    field->setFixedWidth(Style::scaled(fieldWidth));
    m_show = [field](const QVariant &value) { field->setHotkey(value.toString()); };
    connect(field, &HotkeyLineEdit::hotkeyChanged, this,
            [this](const QString &hotkey) { apply(hotkey); });
    connect(field, &HotkeyLineEdit::refused, this, &SettingRow::showFault);
    m_control = field;
    return field;
}

QWidget *SettingRow::makePanel()
{
    m_show = [](const QVariant &) {};
    m_control = m_setting.makePanel(this);
    return m_control;
}

void SettingRow::describe()
{
    // A panel has its own words; the label is what the search finds it by.
    const bool panel = m_setting.editor == Setting::Panel;
    m_label->setVisible(!panel);
    m_explanation->setVisible(!panel);
    m_label->setWordWrap(true);
    m_label->setBuddy(m_control);
    m_explanation->setWordWrap(true);
    m_fault->setObjectName(QLatin1String(m_setting.id) + QStringLiteral("Fault"));
    m_fault->hide();
    const QString own = m_setting.editor == Setting::Folder ? tr("%1: choose").arg(m_setting.label)
                                                            : m_setting.label;
    m_control->setAccessibleName(own);
    m_control->setAccessibleDescription(m_setting.explanation);
}

void SettingRow::layOut(QWidget *editor)
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_label);
    texts->addWidget(m_explanation);
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::margin);
    row->addLayout(texts, 1);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 10, 0, 10);
    all->setSpacing(4);
    all->addLayout(row);
    // A path needs the whole width.
    if (m_setting.editor == Setting::Folder || m_setting.editor == Setting::Panel)
        all->addWidget(editor);
    else
        row->addWidget(editor);
    all->addWidget(m_fault);
}

bool SettingRow::matches(const QStringList &words) const
{
    const QString text =
        QStringList{m_setting.label, m_setting.explanation, m_setting.searchWords}.join(
            QLatin1Char(' '));
    return std::all_of(words.begin(), words.end(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

void SettingRow::refresh()
{
    if (m_setting.value)
        m_show(m_setting.value());
}

void SettingRow::setEditable(bool editable)
{
    m_control->setEnabled(editable);
}

void SettingRow::focusEditor()
{
    m_control->setFocus();
}

void SettingRow::apply(const QVariant &value)
{
    showFault(m_setting.apply(value));
    // What was refused is not shown as if it held.
    refresh();
    Q_EMIT applied();
}

void SettingRow::showFault(const QString &fault)
{
    m_fault->setVisible(!fault.isEmpty());
    m_fault->setMessage(fault);
    m_control->setAccessibleDescription(fault.isEmpty() ? m_setting.explanation : fault);
}
