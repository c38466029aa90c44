#pragma once

#include "ImportReader.h"
#include "style/Palette.h"

#include <QAbstractTableModel>

/// What becomes of each entry of an export, and which of them the user wants. Shows no secrets.
class MoveInModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Chosen, Title, Address, UserName, Becomes, ColumnCount };
    enum Role {
        ColorRole = Qt::UserRole, ///< a Palette::Role
        FaultRole                 ///< whether an entry cannot come in
    };

    explicit MoveInModel(QObject *parent = nullptr);

    /// Null drops the former one.
    void setResult(const std::shared_ptr<ImportResult> &result);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Chooses rows or leaves them out, those that can come in.
    void choose(const QVector<int> &rows, bool chosen);
    void chooseAll(bool chosen);

    /// The rows that are chosen, in order.
    QVector<int> chosen() const;

    struct Counts
    {
        int chosen = 0;
        bool onlyLogins = true; ///< among those that are chosen
        int alreadyThere = 0;   ///< and not chosen
        int unreadable = 0;
        int leftOut = 0; ///< by the user
    };
    Counts counts() const;

Q_SIGNALS:
    void chosenChanged();

private:
    const ImportEntry &entry(int row) const;
    ImportMatch match(int row) const;
    bool canChoose(int row) const { return entry(row).fault == ImportEntry::None; }
    QString text(int row, int column) const;
    QString description(int row) const;
    Palette::Role color(int row, int column) const;

    std::shared_ptr<ImportResult> m_result;
    std::vector<bool> m_chosen;
};
