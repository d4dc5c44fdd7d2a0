#include "platform/qt/window/list_box.h"

#include "platform/qt/window/typed_keys.h"

namespace mirtane {

ListBox::ListBox(EventGate& gate, ControlId id, QWidget* parent) : QListView(parent), gate_(gate), id_(id)
{
    setModel(&model_);
    setToolTip(tipOf(id));
    setUniformItemSizes(true); // a folder may hold thousands of files
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
        gate_.send([this, row = index.row()](Shell& shell) { shell.clickRow(id_, row); });
    });
    connect(this, &QListView::doubleClicked, this, [this](const QModelIndex& index) {
        gate_.send([this, row = index.row()](Shell& shell) { shell.doubleClickRow(id_, row); });
    });
}

void ListBox::show(const Control& now)
{
    showRows(now.rows);
    showRow(now.row);
    setEnabled(now.enabled);
    setVisible(now.visible);
}

// A list whose rows stay keeps its place, so that a second click on a row is a double click.
void ListBox::showRows(const std::vector<std::string>& rows)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(rows.size())); // far below the limit of qsizetype
    for (const std::string& row : rows) texts.append(QString::fromStdString(row));
    if (texts != model_.stringList()) model_.setStringList(texts);
}

void ListBox::showRow(int row)
{
    const QModelIndex index = model_.index(row);
    if (index == currentIndex()) return;
    if (!index.isValid()) clearSelection();
    setCurrentIndex(index);
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    if (codeOf(*event) == key::enter) {
        typeAt(gate_, id_, QChar(key::enter));
        return;
    }
    const int before = currentIndex().row();
    QListView::keyPressEvent(event);
    const int after = currentIndex().row();
    if (after != before) gate_.send([this, after](Shell& shell) { shell.moveToRow(id_, after); });
}

// A picture that comes up below takes room from the list, and the current row is to stay in sight.
void ListBox::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void ListBox::focusInEvent(QFocusEvent* event)
{
    // The list view's own would make the first row current, which no one asked for.
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

} // namespace mirtane
