#include "ItemPage.h"

#include "CardFace.h"
#include "ExpiryText.h"
#include "FieldRow.h"
#include "ItemExpiry.h"
#include "ItemKinds.h"
#include "PMCreditCard.h"
#include "PMLogin.h"
#include "PasswordStrength.h"
#include "RelativeDate.h"
#include "SearchText.h"
#include "SiteIcons.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/Tile.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QUrl>

#include <utility>

namespace {

const int pageMargin = 28;
const int tileSize = 52;

/// Where an item belongs: its web site, or its bank.
QString placeOf(const PMListItem &item)
{
    QString host = QUrl(item.url()).host();
    if (!host.isEmpty())
        return host;
    const char *bank = item.type() == PMListItem::BankAccount ? "bankName" : "bank";
    return item.property(bank).toString();
}

} // namespace

ItemPage::ItemPage(const GPMAppSettings &settings, const Theme &theme, QWidget *parent, Clock clock)
    : QWidget(parent)
    , m_settings(settings)
    , m_theme(theme)
    , m_clock(std::move(clock))
    , m_scroll(makeScrollArea(this))
    , m_column(new QVBoxLayout)
{
    setObjectName(QStringLiteral("itemPage"));
    makeHeader();
    layOut();
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &ItemPage::refresh);
}

void ItemPage::makeHeader()
{
    m_tile = new Tile(tileSize, m_theme, this);
    m_title = new ElidedLabel("title", this);
    m_title->setObjectName(QStringLiteral("itemTitle"));
    m_subtitle = new ElidedLabel("muted", this);
    m_star = makeIconButton(m_theme.icon(QStringLiteral("star"), Palette::Text), tr("Favourite"),
                            "framed", this);
    m_star->setObjectName(QStringLiteral("favoriteButton"));
    connect(m_star, &QToolButton::clicked, this, &ItemPage::favoriteToggled);
    m_edit = makeButton({}, "plain", this);
    m_edit->setObjectName(QStringLiteral("editButton"));
    m_edit->setIcon(m_theme.icon(QStringLiteral("edit"), Palette::Text));
    m_edit->setIconSize(QSize(Style::iconSize, Style::iconSize));
    m_edit->setProperty("iconOnly", true);
    m_edit->setAccessibleName(tr("Edit"));
    m_edit->setToolTip(tr("Edit (F2)"));
    connect(m_edit, &QPushButton::clicked, this, &ItemPage::editRequested);
    m_use = makeButton({}, "primary", this);
    m_use->setObjectName(QStringLiteral("useButton"));
    connect(m_use, &QPushButton::clicked, this, &ItemPage::defaultActionRequested);
    m_times = makeLabel({}, "muted", this);
    m_times->setObjectName(QStringLiteral("itemTimes"));
    m_uses = makeLabel({}, "muted", this);
    m_uses->setObjectName(QStringLiteral("itemUses"));
}

void ItemPage::layOut()
{
    auto *names = new QVBoxLayout;
    names->setSpacing(2);
    names->addWidget(m_title);
    names->addWidget(m_subtitle);
    auto *header = new QHBoxLayout;
    header->setSpacing(Style::spacing);
    header->addWidget(m_tile);
    header->addSpacing(Style::spacing);
    header->addLayout(names, 1);
    header->setAlignment(names, Qt::AlignVCenter);
    header->addWidget(m_star);
    header->addWidget(m_edit);
    header->addWidget(m_use);

    auto *info = new QHBoxLayout;
    info->addWidget(m_times, 1);
    info->addWidget(m_uses);

    auto *body = new QWidget;
    body->setObjectName(QStringLiteral("pageBody"));
    body->setLayout(m_column);
    m_column->setContentsMargins(pageMargin, 24, pageMargin, Style::margin);
    m_column->setSpacing(Style::margin);
    m_column->addLayout(header);
    m_column->addLayout(info);
    m_column->addStretch();

    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(body);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(m_scroll);
}

void ItemPage::setItem(const PMListItem *item)
{
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    if (item) {
        // One refresh for a change of many fields.
        connect(item, &PMListItem::timestampChanged, this, [this] { m_refresh.start(); });
        connect(item, &QObject::destroyed, this, [this] { setItem(nullptr); });
    }
    m_scroll->ensureVisible(0, 0);
    refresh();
}

void ItemPage::refresh()
{
    m_refresh.stop();
    showHeader();
    showFields();
    showInfo();
}

void ItemPage::setIcons(SiteIcons &icons)
{
    m_icons = &icons;
    connect(&icons, &SiteIcons::changed, this, &ItemPage::showHeader);
}

void ItemPage::showHeader()
{
    const PMListItem::Type type = m_item ? m_item->type() : PMListItem::UndefinedItem;
    const QPixmap icon =
        m_item && m_icons ? m_icons->icon(m_item->icon(), m_tile->iconSide(), itemDomain(*m_item))
                          : QPixmap();
    m_tile->setItem(m_item ? m_item->title() : QString(), type, icon);
    m_title->setFullText(m_item ? m_item->title() : QString());
    const QString place = m_item ? placeOf(*m_item) : QString();
    const QString kind = m_item ? itemKindName(type) : QString();
    m_subtitle->setFullText(place.isEmpty() ? kind : tr("%1 · %2").arg(kind, place));
    const bool usable = isUsable();
    m_star->setVisible(usable);
    m_edit->setVisible(usable);
    const QString use = defaultActionText(type);
    m_use->setVisible(usable && !use.isEmpty());
    m_use->setText(use);
    m_use->setIcon(m_theme.icon(QLatin1String(defaultActionIcon(type)), Palette::OnAccent));
    m_use->setToolTip(type == PMListItem::Login ? tr("Log in (Ctrl+Return)")
                                                : tr("Fill into the open page (Ctrl+Return)"));
    const bool favorite = m_item && m_item->favorite();
    m_star->setIcon(favorite ? m_theme.icon(QStringLiteral("star-filled"), Palette::Star)
                             : m_theme.icon(QStringLiteral("star"), Palette::Text));
    const QString star = favorite ? tr("Remove from favourites") : tr("Add to favourites");
    m_star->setToolTip(star);
    m_star->setAccessibleName(star);
}

void ItemPage::showFields()
{
    // At once, so that nothing of an item that went stays on the screen.
    delete m_fields;
    m_fields = nullptr;
    if (!m_item)
        return;
    m_fields = new QWidget(this);
    m_cards = new QVBoxLayout(m_fields);
    m_cards->setContentsMargins({});
    m_cards->setSpacing(Style::margin);
    const auto *payment = qobject_cast<const PMCreditCard *>(m_item.data());
    if (payment && !(payment->number().isEmpty() && payment->bank().isEmpty())) {
        auto *face = new CardFace(*payment, m_theme, m_fields);
        connect(face, &CardFace::copyRequested, this, &ItemPage::copyRequested);
        m_cards->addWidget(face);
    }
    QFrame *card = nullptr;
    for (const ItemField &field : itemFields(m_item->type())) {
        const QString value = itemFieldText(*m_item, field, m_settings);
        if (value.isEmpty() || field.has(ItemField::OnFace))
            continue;
        FieldRow *row = makeRow(field, value);
        // Longer texts stand apart.
        if (!card || field.isText())
            card = addCard();
        addToCard(row, card);
    }
    m_column->insertWidget(1, m_fields);
    // New widgets come last for Tab; these belong behind the header.
    QWidget *before = m_use;
    QList<QToolButton *> buttons = m_fields->findChildren<QToolButton *>();
    for (QToolButton *button : qAsConst(buttons)) {
        setTabOrder(before, button);
        before = button;
    }
    Q_EMIT fieldsShown();
}

void ItemPage::setBelowFields(QWidget *widget)
{
    m_column->insertWidget(1, widget);
}

QWidget *ItemPage::lastFocus() const
{
    const QList<QToolButton *> buttons =
        m_fields ? m_fields->findChildren<QToolButton *>() : QList<QToolButton *>();
    return buttons.isEmpty() ? static_cast<QWidget *>(m_use) : buttons.last();
}

FieldRow *ItemPage::makeRow(const ItemField &field, const QString &value)
{
    auto *row = new FieldRow(field, value, itemFieldCopyText(*m_item, field, m_settings), m_theme,
                             m_fields);
    connect(row, &FieldRow::copyRequested, this, &ItemPage::copyRequested);
    connect(row, &FieldRow::openRequested, this, &ItemPage::openRequested);
    const auto *login = qobject_cast<const PMLogin *>(m_item.data());
    // The stored level is that of the program that wrote the item, if it knew of one.
    if (login && field.form == ItemField::Password)
        row->setStrength(passwordStrengthLevel(login->password()));
    if (isUsable() && field.form == ItemField::Password) {
        row->addGenerator();
        connect(row, &FieldRow::generatorRequested, this, &ItemPage::generatorRequested);
    }
    if (isUsable() && field.form == ItemField::FillType)
        addFillTypes(*row);
    if (field.has(ItemField::Expiry))
        addExpiry(*row);
    return row;
}

void ItemPage::addExpiry(FieldRow &row)
{
    const QDate today = m_clock().toLocalTime().date();
    const std::optional<QDate> last = itemExpiry(*m_item);
    QString text = last ? expiryText(*last, today) : QString();
    if (text.isEmpty())
        return;
    // It goes on behind the date.
    text.replace(0, 1, text.at(0).toLower());
    row.setBadge(text, isExpired(*last, today) ? Palette::Terrible : Palette::Weak);
}

void ItemPage::addFillTypes(FieldRow &row)
{
    using Type = PMFieldTypes::LoginFillType;
    static const QVector<Type> types = {Type::GlobalSettings, Type::FillAndSubmit, Type::OnlyFill};
    QStringList texts;
    for (const Type type : types)
        texts.append(fillTypeText(static_cast<int>(type), m_settings));
    row.addChoices(texts);
    // Behind the menu's own end, as the row goes with the change.
    connect(
        &row, &FieldRow::chosen, this,
        [this](int index) { Q_EMIT fillTypeChosen(types.at(index)); }, Qt::QueuedConnection);
}

QFrame *ItemPage::addCard()
{
    QFrame *card = makeCard(m_fields);
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    m_cards->addWidget(card);
    return card;
}

void ItemPage::addToCard(FieldRow *row, QFrame *card)
{
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    if (column->count() > 0) {
        auto *line = new QFrame(card);
        line->setObjectName(QStringLiteral("cardLine"));
        column->addWidget(line);
    }
    column->addWidget(row);
}

void ItemPage::showInfo()
{
    m_times->setVisible(m_item);
    m_uses->setVisible(m_item && m_item->useCount() > 0);
    if (!m_item)
        return;
    const QDateTime now = m_clock();
    m_times->setText(
        tr("Modified %1 · created %2")
            .arg(relativeMoment(m_item->modified(), now), relativeDate(m_item->created(), now)));
    const int uses = m_item->useCount();
    m_uses->setText(uses == 1 ? tr("Used once") : tr("Used %n times", nullptr, uses));
}
