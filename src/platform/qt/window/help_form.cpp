#include "platform/qt/window/help_form.h"

#include "platform/qt/window/child.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace mirtane {
namespace {

constexpr int findWidth = 260;

// The contents beside the page. They give way while the page has no room for its longest line.
class ContentsAndPage : public QWidget {
  public:
    ContentsAndPage(const ControlMaker& maker, QWidget* parent)
        : QWidget(parent), contents_(maker.make(ids::helpContents, *this)),
          page_(maker.make(ids::helpPage, *this))
    {
        auto& row = childOf<QHBoxLayout>(*this);
        row.setContentsMargins(0, 0, 0, 0);
        row.setSpacing(spacing);
        row.addWidget(&contents_);
        row.addWidget(&page_, 1);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        const int line = page_.fontMetrics().horizontalAdvance(QString(longestLine, u'm'));
        contents_.setFixedWidth(std::clamp(width() - spacing - line - round, least, most));
    }

  private:
    static constexpr int spacing = 10;
    static constexpr int least = 130;
    static constexpr int most = 320;
    static constexpr int round = 40;       // about the page's lines, with its scroll bar
    static constexpr int longestLine = 79; // the manual's
    QWidget& contents_;                    // both belong to this
    QWidget& page_;
};

QWidget& findLine(const ControlMaker& maker, QWidget& form)
{
    QWidget& line = childOf<QWidget>(form);
    QHBoxLayout& row = childOf<QHBoxLayout>(line);
    row.setContentsMargins(0, 0, 0, 0);
    row.setSpacing(8);
    QWidget& box = maker.make(ids::helpFind, line);
    QWidget& label = maker.makeLabel(ids::helpFindLabel, box, line);
    label.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    box.setFixedWidth(findWidth);
    row.addStretch();
    row.addWidget(&label);
    row.addWidget(&box);
    return line;
}

// What stands in the box is what one wants to type over.
void goToFindLine(EventGate& gate, QWidget& form)
{
    gate.send([](Shell& shell) { shell.giveFocus(ids::helpFind); });
    if (auto* const box = qobject_cast<QLineEdit*>(form.focusWidget())) box->selectAll();
}

} // namespace

void layHelpForm(const ControlMaker& maker, QWidget& form)
{
    QVBoxLayout& column = childOf<QVBoxLayout>(form);
    column.setContentsMargins(14, 8, 14, 14);
    column.setSpacing(6);
    column.addWidget(&findLine(maker, form));
    column.addWidget(&childOf<ContentsAndPage>(form, maker), 1);
    QShortcut& toFind = childOf<QShortcut>(form, QKeySequence(QKeySequence::Find));
    QObject::connect(&toFind, &QShortcut::activated, &form,
                     [&gate = maker.gate(), &form] { goToFindLine(gate, form); });
}

} // namespace mirtane
