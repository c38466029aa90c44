#pragma once

#include "EditorDefaults.h"
#include "main/ItemFields.h"

#include <QVariant>
#include <QWidget>

class GPMAppSettings;
class MessageLabel;
class QGridLayout;
class Theme;

/// What the inputs of an editor share.
struct InputContext
{
    const GPMAppSettings &settings;
    const Theme &theme;
    EditorDefaults defaults;
    QLocale locale;
};

/// The input of one field: its label, the control, and below it the message on what is wrong.
class FieldInput : public QWidget
{
    Q_OBJECT

public:
    FieldInput(const ItemField &field, QWidget *parent);

    const ItemField &field() const { return m_field; }

    virtual QVariant value() const = 0;
    /// Shows a value that nobody typed: edited() is not emitted.
    virtual void setValue(const QVariant &value) = 0;
    /// What takes the keyboard.
    virtual QWidget *control() const = 0;

    void setFault(const QString &message);
    bool hasFault() const;

Q_SIGNALS:
    void edited();
    void copyRequested(const QString &value);
    void openRequested(const QString &address);
    /// A made password is wanted: setValue(), and then edited(), put it in.
    void generatorRequested();

protected:
    /// Puts a named control below its label. The first column is for a part of the value that
    /// stands before it, of the given width.
    void place(QWidget *control, int column, const QString &label, const QString &name,
               int width = 0);
    /// Puts a widget where the message would stand; such a field has no message.
    void placeBelow(QWidget *widget);
    virtual void showFault(bool wrong);

private:
    ItemField m_field;
    QGridLayout *m_grid;
    MessageLabel *m_message;
};

/// The input for the form of a field.
FieldInput *makeFieldInput(const ItemField &field, const InputContext &context, QWidget *parent);
