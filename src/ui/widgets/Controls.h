#pragma once

#include <QBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

/// Small makers of the controls that the style sheet knows by their "tone" or "look".

QLabel *makeLabel(const QString &text, const char *tone, QWidget *parent);
QPushButton *makeButton(const QString &text, const char *look, QWidget *parent);

/// A square button with an icon; the name is its tool tip and what assistive tools say.
QToolButton *makeIconButton(const QIcon &icon, const QString &name, const char *look,
                            QWidget *parent);

/// A frame with round corners that groups rows.
QFrame *makeCard(QWidget *parent);

/// Scrolls what is put into it up and down; without a frame of its own.
QScrollArea *makeScrollArea(QWidget *parent);

/// Keeps room for a text that wraps in the given width: a window's smallest size forgets it.
void keepTextHeight(QLabel &label, int width);

/// A row that keeps a widget in its middle. Unlike an alignment it lets texts wrap in the widget.
QHBoxLayout *centred(QWidget *widget);

/// Changes a property that the style sheet asks for.
void setStyleProperty(QWidget &widget, const char *name, const QVariant &value);
