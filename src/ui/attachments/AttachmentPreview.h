#pragma once

#include "PreviewContent.h"
#include "widgets/FramedDialog.h"

class QCheckBox;
class QPlainTextEdit;

/// Shows what is in an attachment.
class AttachmentPreview : public FramedDialog
{
    Q_OBJECT

public:
    AttachmentPreview(const QString &name, const PreviewContent &content, const Theme &theme,
                      QWidget *parent);

Q_SIGNALS:
    void saveRequested();
    void openRequested();

private:
    void addText(const PreviewContent &content);
    void addPicture(const PreviewContent &content);
    void addNote(const QString &text);
    void addButtons(const Theme &theme);
    void setMonospace(bool monospace);

    QPlainTextEdit *m_text = nullptr;
    QCheckBox *m_monospace = nullptr;
};
