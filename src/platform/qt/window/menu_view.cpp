#include "platform/qt/window/menu_view.h"

#include "platform/qt/window/child.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <array>
#include <map>

namespace mirtane {
namespace {

// An entry of a menu, or of the bar itself.
class EntryView : public QAction, public ControlView {
  public:
    EntryView(EventGate& gate, ControlId id, QObject* parent) : QAction(parent)
    {
        setCheckable(id.row().kind == ControlKind::checkedEntry);
        connect(this, &QAction::triggered, this, [this, &gate, id] {
            setChecked(checked_); // the toolkit turned it; the control alone says whether it is checked
            gate.send([id](Shell& shell) { shell.click(id); });
        });
    }

    void show(const Control& now) override
    {
        checked_ = now.checked;
        setText(captionOf(now));
        setChecked(now.checked);
        setEnabled(now.enabled);
        setVisible(now.visible);
    }

  private:
    bool checked_ = false;
};

class MenuView : public QMenu, public ControlView {
  public:
    explicit MenuView(QWidget* parent) : QMenu(parent) {}

    void show(const Control& now) override
    {
        setTitle(captionOf(now));
        menuAction()->setEnabled(now.enabled);
        menuAction()->setVisible(now.visible);
    }
};

struct Shortcut {
    ControlId id;
    QKeySequence::StandardKey keys;
};

constexpr std::array<Shortcut, 2> shortcuts{
    {{ids::undo, QKeySequence::Undo}, {ids::redo, QKeySequence::Redo}}};

QList<QKeySequence> shortcutsOf(ControlId id)
{
    const auto row =
        std::find_if(shortcuts.begin(), shortcuts.end(), [id](const Shortcut& one) { return one.id == id; });
    if (row == shortcuts.end()) return {};
    QList<QKeySequence> keys = QKeySequence::keyBindings(row->keys);
    if (row->keys == QKeySequence::Redo) keys.append(QKeySequence(Qt::CTRL | Qt::Key_Y));
    return keys;
}

void addSeparator(QWidget& menu)
{
    QAction& separator = childOf<QAction>(menu);
    separator.setSeparator(true);
    menu.addAction(&separator);
}

bool isMenuRow(ControlKind kind)
{
    return kind == ControlKind::menu || kind == ControlKind::entry || kind == ControlKind::checkedEntry;
}

} // namespace

void fillMenuBar(QMenuBar& bar, ControlId form, EventGate& gate, ControlViews& views)
{
    std::map<std::string_view, QMenu*> menus; // each belongs to the widget it stands in
    for (const ControlRow& row : controlTable) {
        const ControlId id = row.id;
        if (!isMenuRow(row.kind) || !(formOf(id) == form)) continue;
        const auto parent = menus.find(row.parent);
        QWidget* holder =
            parent == menus.end() ? static_cast<QWidget*>(&bar) : parent->second; // one type for both
        if (row.separatorBefore) addSeparator(*holder);
        if (row.kind == ControlKind::menu) {
            MenuView& menu = childOf<MenuView>(*holder);
            holder->addAction(menu.menuAction());
            menus.emplace(row.name, &menu);
            views.add(id, menu);
        } else {
            EntryView& entry = childOf<EntryView>(*holder, gate, id);
            entry.setShortcuts(shortcutsOf(id));
            holder->addAction(&entry);
            views.add(id, entry);
        }
    }
}

} // namespace mirtane
