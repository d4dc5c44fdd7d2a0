#include "platform/qt/window/menu_view.h"

#include "platform/qt/window/child.h"
#include "platform/qt/window/swatches.h"
#include "platform/qt/window/typed_keys.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <map>

namespace mirtane {
namespace {

// The letter that opens a menu with Alt is one of the caption's own, and underlined in it.
QString captionWithLetter(const Control& control, ControlId id)
{
    QString caption = captionOf(control);
    const auto* const row = std::find_if(std::begin(menuLetters), std::end(menuLetters),
                                         [id](const MenuLetter& one) { return one.menu == id; });
    if (row == std::end(menuLetters)) return caption;
    const qsizetype at = caption.indexOf(QLatin1Char(row->letter));
    return at < 0 ? caption : caption.insert(at, QLatin1Char('&'));
}

// An entry of a menu, or of the bar itself.
class EntryView : public QAction, public ControlView {
  public:
    EntryView(EventGate& gate, ControlId id, QObject* parent) : QAction(parent), id_(id)
    {
        setObjectName(nameOf(id));
        setCheckable(id.row().kind == ControlKind::checkedEntry);
        setIcon(swatchOf(id));
        connect(this, &QAction::triggered, this, [this, &gate, id] {
            setChecked(checked_); // the toolkit turned it; the control alone says whether it is checked
            gate.send([id](Shell& shell) { shell.choose(id); });
        });
    }

    void show(const Control& now) override
    {
        checked_ = now.checked;
        setText(captionWithLetter(now, id_));
        setChecked(now.checked);
        setEnabled(now.enabled);
        setVisible(now.visible);
    }

  private:
    ControlId id_;
    bool checked_ = false;
};

class MenuView : public QMenu, public ControlView {
  public:
    MenuView(ControlId id, QWidget* parent) : QMenu(parent), id_(id) {}

    void show(const Control& now) override
    {
        setTitle(captionWithLetter(now, id_));
        menuAction()->setEnabled(now.enabled);
        menuAction()->setVisible(now.visible);
    }

  private:
    ControlId id_;
};

QList<QKeySequence> shortcutsOf(ControlId id)
{
    QList<QKeySequence> keys;
    for (const Shortcut& row : shortcuts) {
        if (row.deed == Deed::press && row.control == id && !row.onDrawing) keys.append(keysOf(row));
    }
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
            MenuView& menu = childOf<MenuView>(*holder, id);
            holder->addAction(menu.menuAction());
            menus.emplace(row.name, &menu);
            views.add(id, menu);
        } else {
            EntryView& entry = childOf<EntryView>(*holder, gate, id);
            entry.setShortcuts(shortcutsOf(id));
            entry.setShortcutContext(Qt::ApplicationShortcut); // the forms beside the drawing have none
            holder->addAction(&entry);
            views.add(id, entry);
        }
    }
}

} // namespace mirtane
