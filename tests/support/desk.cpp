#include "desk.h"

#include "text/utf8.h"

namespace mirtane::fake {

Desk::Desk(const std::map<std::string, std::string>& stored, const MemoryWork& found, Printer* printer)
    : work(found),
      shell(*session, pic1, Ports{disk, folders, settings, home, printer, nullptr, {}, &work, &clock, &marks})
{
    settings.values = stored;
    folders.folders = {"/", "/home", home};
    shell.start();
    pic1.takeOps();
}

Desk::~Desk() = default;

void Desk::press(ControlId id)
{
    shell.click(id);
}

void Desk::move(float x, float y)
{
    shell.mouseMove({x, y});
}

void Desk::down(int button, float x, float y)
{
    shell.mouseDown(button, {x, y});
}

void Desk::click(float x, float y)
{
    move(x, y);
    down(1, x, y);
}

void Desk::cancel(float x, float y)
{
    down(2, x, y);
}

void Desk::type(std::string_view text)
{
    for (const std::string& c : utf8Characters(text)) shell.keyPress(firstCharacter(c).code);
}

void Desk::enter()
{
    shell.keyPress(13);
}

void Desk::backspace()
{
    shell.keyPress(8);
}

void Desk::name(const std::string& typed)
{
    setText(s.controls[ids::fileName], "");
    shell.giveFocus(ids::fileName);
    type(typed);
}

void Desk::saveAs(const std::string& typed)
{
    press(ids::saveDrawing);
    name(typed);
    enter();
}

void Desk::open(const std::string& typed)
{
    press(ids::openDrawing);
    name(typed);
    enter();
}

void Desk::layPoint(float x, float y)
{
    press(ids::blankToggle);
    down(1, x, y);
    press(ids::blankToggle);
}

void Desk::drawLine(float x1, float y1, float x2, float y2)
{
    press(ids::drawLine);
    down(1, x1, y1);
    shell.mouseMove({x2, y2});
    down(1, x2, y2);
    cancel();
}

std::string_view Desk::focused() const
{
    return session->controls.focus.row().name;
}

std::string_view Desk::title() const
{
    return caption(ids::mainForm);
}

std::string titleOf(std::string_view doing, std::string_view drawing)
{
    return "Mirtane 4.00    Drawing Name: " + std::string(drawing) +
           "    Current Function: " + std::string(doing);
}

} // namespace mirtane::fake
