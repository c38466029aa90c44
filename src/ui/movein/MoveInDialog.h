#pragma once

#include "ImportAdder.h"
#include "dialogs/Question.h"
#include "widgets/FramedDialog.h"

#include <functional>
#include <memory>

class DropMark;
class GPMAppCore;
class GPMSafe;
class MoveInColumns;
class MoveInEnd;
class MoveInPreview;
class MoveInProgress;
class MoveInStart;
class QStackedWidget;

/// Brings the passwords of browsers and other programs over into the open safe.
class MoveInDialog : public FramedDialog
{
    Q_OBJECT

public:
    struct Parts
    {
        GPMAppCore &core;
        Asker asker = {}; ///< the default one shows dialogs
        /// Answer with a path; an empty one when the user does not want to.
        std::function<QString(QWidget *)> chooseFile = {};
        std::function<QString(QWidget *, const QString &name)> chooseTarget = {};
    };

    MoveInDialog(Parts parts, const Theme &theme, QWidget *parent);
    ~MoveInDialog() override;

    /// Shows the one of a window, made when there is none. Does nothing without an open safe.
    static void open(GPMAppCore &core, const Theme &theme, QWidget *window);

    /// Looks into a file and shows what is in it.
    void readFile(const QString &path);

    /// Whether there is something that closing it would lose: what runs, choices or a report.
    bool holdsWork() const;

    /// Stops what is under way before it closes.
    void reject() override;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makePages(const Theme &theme);
    void connectPages();
    template <typename Page>
    void showPage(Page *page);
    void read(const ImportColumns &columns);
    void onRead();
    void stopReading();
    void add();
    void onAdded();
    void dropResult();
    void onLocked();
    void saveReport();
    void deleteFile();
    bool takesDrops() const;

    Parts m_parts;
    std::shared_ptr<GPMSafe> m_safe;
    QStackedWidget *m_pages;
    MoveInStart *m_start;
    MoveInColumns *m_columns;
    MoveInProgress *m_progress;
    MoveInPreview *m_preview;
    MoveInEnd *m_end;
    DropMark *m_dropMark;
    QString m_path;
    std::unique_ptr<ImportReader> m_reader;
    std::shared_ptr<ImportResult> m_result;
    QVector<int> m_chosen;
    std::unique_ptr<ImportAdder> m_adder;
};
