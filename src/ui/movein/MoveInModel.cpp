#include "MoveInModel.h"

#include "MoveInTexts.h"
#include "editor/ItemSummary.h"
#include "main/ItemKinds.h"

#include <algorithm>
#include <numeric>

namespace {

const QString nothing = QStringLiteral("—");

} // namespace

MoveInModel::MoveInModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void MoveInModel::setResult(const std::shared_ptr<ImportResult> &result)
{
    beginResetModel();
    m_result = result;
    m_chosen.clear();
    for (int row = 0; row < rowCount(); ++row) {
        const bool isThere = match(row) == ImportMatch::AlreadyThere;
        m_chosen.push_back(canChoose(row) && !isThere);
    }
    endResetModel();
    Q_EMIT chosenChanged();
}

int MoveInModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_result ? 0 : int(m_result->file.entries.size());
}

int MoveInModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

ImportMatch MoveInModel::match(int row) const
{
    return m_result->matches[std::size_t(row)];
}

const ImportEntry &MoveInModel::entry(int row) const
{
    return m_result->file.entries[std::size_t(row)];
}

QString MoveInModel::text(int row, int column) const
{
    const ImportEntry &one = entry(row);
    switch (column) {
    case Title: {
        const QString title = one.text("title").simplified();
        return title.isEmpty() ? MoveInTexts::standIn(m_result->file, one) : title;
    }
    case Address: {
        const QString address = MoveInTexts::shownAddress(one.text("url"));
        return address.isEmpty() ? nothing : address;
    }
    case UserName: {
        const bool isLogin = one.type == PMListItem::Login || one.fault != ImportEntry::None;
        const QString name = isLogin ? one.text("login").simplified() : itemSummary(*one.toItem());
        return name.isEmpty() ? nothing : name;
    }
    case Becomes: {
        if (one.fault != ImportEntry::None)
            return MoveInTexts::fault(one.fault);
        const QString remark = MoveInTexts::remark(one, match(row));
        return remark.isEmpty() ? itemKindName(one.type) : remark;
    }
    default:
        return {};
    }
}

QString MoveInModel::description(int row) const
{
    QStringList parts;
    for (const int column : {Title, Address, UserName, Becomes}) {
        const QString part = text(row, column);
        if (part != nothing)
            parts.append(part);
    }
    if (canChoose(row))
        parts.append(m_chosen[std::size_t(row)] ? tr("chosen") : tr("not chosen"));
    return parts.join(QStringLiteral(", "));
}

Palette::Role MoveInModel::color(int row, int column) const
{
    if (column == Title)
        return Palette::Text;
    if (column != Becomes)
        return Palette::Muted;
    if (!canChoose(row))
        return Palette::Weak;
    switch (match(row)) {
    case ImportMatch::New:
        return entry(row).addressInNote ? Palette::Weak : Palette::Accent;
    case ImportMatch::AlreadyThere:
        return Palette::Muted;
    case ImportMatch::OtherPassword:
    case ImportMatch::OtherNote:
        break;
    }
    return Palette::Weak;
}

QVariant MoveInModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == Becomes ? MoveInTexts::advice(entry(row), match(row))
                                         : text(row, index.column());
    case Qt::AccessibleTextRole:
        return description(row);
    case Qt::CheckStateRole:
        if (index.column() == Chosen && canChoose(row))
            return m_chosen[std::size_t(row)] ? Qt::Checked : Qt::Unchecked;
        return {};
    case ColorRole:
        return color(row, index.column());
    case FaultRole:
        return !canChoose(row);
    default:
        return {};
    }
}

QVariant MoveInModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const QString names[] = {{}, tr("Title"), tr("Address"), tr("User name"), tr("Becomes")};
    return section < ColumnCount ? names[section] : QString();
}

bool MoveInModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid())
        return false;
    choose({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags MoveInModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == Chosen && canChoose(index.row()))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

void MoveInModel::choose(const QVector<int> &rows, bool chosen)
{
    for (const int row : rows) {
        if (canChoose(row))
            m_chosen[std::size_t(row)] = chosen;
    }
    if (rows.isEmpty())
        return;
    const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
    Q_EMIT dataChanged(index(*first, Chosen), index(*last, Chosen), {Qt::CheckStateRole});
    Q_EMIT chosenChanged();
}

void MoveInModel::chooseAll(bool chosen)
{
    QVector<int> rows(rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    choose(rows, chosen);
}

QVector<int> MoveInModel::chosen() const
{
    QVector<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_chosen[std::size_t(row)])
            rows.append(row);
    }
    return rows;
}

MoveInModel::Counts MoveInModel::counts() const
{
    Counts counts;
    for (int row = 0; row < rowCount(); ++row) {
        const auto place = std::size_t(row);
        if (m_chosen[place]) {
            ++counts.chosen;
            counts.onlyLogins = counts.onlyLogins && entry(row).type == PMListItem::Login;
        } else if (!canChoose(row)) {
            ++counts.unreadable;
        } else if (match(row) == ImportMatch::AlreadyThere) {
            ++counts.alreadyThere;
        } else {
            ++counts.leftOut;
        }
    }
    return counts;
}
