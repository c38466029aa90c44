#pragma once

#include "ItemExportTask.h"
#include "widgets/FramedDialog.h"

#include <functional>

class GPMAppCore;
class MessageLabel;
class PasswordField;
class ProgressDialog;
class QLabel;
class QPushButton;
class SelectBox;
class Theme;

/// Asks what is to be exported and how, warns, and asks for the password of the safe; then writes
/// the file.
class ExportDialog : public FramedDialog
{
    Q_OBJECT

public:
    struct Parts
    {
        GPMAppCore &core;
        /// Answers with a path; an empty one when the user does not want to.
        std::function<QString(QWidget *, const QString &name)> chooseTarget = {};
        std::shared_ptr<FileLayer> files = std::make_shared<FileLayer>();
    };

    /// @param selected the items that are selected; may be empty
    ExportDialog(Parts parts, const QStringList &selected, const Theme &theme, QWidget *parent);

    /// Shows one above a window. Does nothing without an open safe.
    static void open(GPMAppCore &core, const QStringList &selected, const Theme &theme,
                     QWidget *window);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fitHeight();
    void makeFields();
    void layOut();
    QWidget *makeWarning();
    QStringList chosenIds() const;
    ItemExport::Format format() const;
    void showChoice();
    void goOn();
    void write(const QString &path);

    Parts m_parts;
    const Theme &m_theme;
    std::shared_ptr<GPMSafe> m_safe;
    QStringList m_selected;
    SelectBox *m_what;
    SelectBox *m_format;
    QLabel *m_leftOut;
    PasswordField *m_password;
    MessageLabel *m_message;
    QPushButton *m_export;
};
