#pragma once

#include "Clock.h"
#include "PMFieldTypes.h"
#include "PMListItem.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class ElidedLabel;
class FieldRow;
class GPMAppSettings;
struct ItemField;
class QFrame;
class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;
class QVBoxLayout;
class Theme;
class SiteIcons;
class Tile;

/// Shows one item of any kind: its filled fields, and what was done with it.
class ItemPage : public QWidget
{
    Q_OBJECT

public:
    ItemPage(const GPMAppSettings &settings, const Theme &theme, QWidget *parent,
             Clock clock = systemTime);

    /// Follows the item's changes until it goes; null shows nothing.
    void setItem(const PMListItem *item);
    /// Shows it anew, as when another day has begun.
    void refresh();
    const PMListItem *item() const { return m_item; }

    /// Where the icons of sites come from; must outlive this.
    void setIcons(SiteIcons &icons);

    /// Puts a widget between the fields and the item's times.
    void setBelowFields(QWidget *widget);
    /// The last part of the fields that takes the keyboard.
    QWidget *lastFocus() const;

Q_SIGNALS:
    /// Other parts take the keyboard now.
    void fieldsShown();
    void defaultActionRequested();
    void favoriteToggled();
    void copyRequested(const QString &value);
    void openRequested(const QString &address);
    void editRequested();
    /// A made password is wanted for the item.
    void generatorRequested();
    void fillTypeChosen(PMFieldTypes::LoginFillType type);

private:
    void makeHeader();
    void layOut();
    void showHeader();
    void showFields();
    void showInfo();
    FieldRow *makeRow(const ItemField &field, const QString &value);
    void addExpiry(FieldRow &row);
    void addFillTypes(FieldRow &row);
    void addToCard(FieldRow *row, QFrame *card);
    bool isUsable() const { return m_item && !m_item->deleted(); }
    QFrame *addCard();

    const GPMAppSettings &m_settings;
    const Theme &m_theme;
    Clock m_clock;
    QPointer<const PMListItem> m_item;
    QTimer m_refresh;
    QScrollArea *m_scroll;
    SiteIcons *m_icons = nullptr;
    Tile *m_tile;
    ElidedLabel *m_title;
    ElidedLabel *m_subtitle;
    QToolButton *m_star;
    QPushButton *m_edit;
    QPushButton *m_use;
    QWidget *m_fields = nullptr;
    QVBoxLayout *m_cards = nullptr;
    QVBoxLayout *m_column;
    QLabel *m_times;
    QLabel *m_uses;
};
