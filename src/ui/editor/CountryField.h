#pragma once

#include "widgets/TextField.h"

class QCompleter;
class Theme;

/// A line for a country, or for a dialling code. While one types, the countries whose name or code
/// has the typed text in it can be chosen; any other text is kept, too.
class CountryField : public TextField
{
    Q_OBJECT

public:
    enum Content { Names, Codes };

    CountryField(Content content, const Theme &theme, QWidget *parent);

    /// The dialling code without the plus sign.
    QString code() const;
    void setCode(const QString &code);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void showAll();
    void replaceName();

    Content m_content;
    QCompleter *m_completer;
};
