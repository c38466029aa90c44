#pragma once

#include <QWidget>

#include <functional>

class CloudOffer;
class CreateSafeForm;
class ElidedLabel;
class GPMAppCore;
class QLabel;
class QPushButton;
class Theme;

/// Makes a new safe.
class CreateSafePage : public QWidget
{
    Q_OBJECT

public:
    CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent);

    /// Starts anew with empty fields.
    void start();
    /// Puts the keyboard into the first field.
    void takeFocus();
    void clearSecrets();

    /// How the folder of the safe is chosen; without this it goes to the standard place.
    void setFolderChoice(const std::function<QString()> &choose);

Q_SIGNALS:
    void backRequested();
    void importRequested();
    void restoreRequested();
    /// A safe of the cloud folder is to come to this computer.
    void cloudImportRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut(const Theme &theme);
    void chooseFolder();
    void showFolder();

    GPMAppCore &m_core;
    CloudOffer *m_cloudOffer;
    QLabel *m_offer;
    CreateSafeForm *m_form;
    QPushButton *m_back;
    QPushButton *m_create;
    ElidedLabel *m_where;
    QPushButton *m_choose;
    std::function<QString()> m_chooseFolder;
};
