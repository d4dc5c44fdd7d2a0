#include "play/player.h"

#include "play/json_compare.h"
#include "play/questions.h"
#include "play/words.h"
#include "text/utf8.h"

#include <algorithm>
#include <filesystem>

namespace mirtane::play {
namespace {

constexpr char32_t enterKey = 13;
constexpr char32_t backspaceKey = 8;
constexpr int leftButton = 1;
constexpr int rightButton = 2;

Point takePoint(Words& words)
{
    const float x = words.coordinate();
    return {x, words.coordinate()};
}

void moveCommand(Stage& stage, Words& words)
{
    stage.shell.mouseMove(takePoint(words));
}

void downCommand(Stage& stage, Words& words)
{
    const int button = words.whole();
    if (button != 1 && button != 2 && button != 4) throw Refusal{"no such mouse button"};
    stage.shell.mouseDown(button, takePoint(words));
}

void clickCommand(Stage& stage, Words& words)
{
    const Point at = takePoint(words);
    stage.shell.mouseMove(at);
    stage.shell.mouseDown(leftButton, at);
}

void cancelCommand(Stage& stage, Words& words)
{
    stage.shell.mouseDown(rightButton, takePoint(words));
}

void keyDownCommand(Stage& stage, Words& words)
{
    stage.shell.keyDown(words.whole());
}

void keyUpCommand(Stage& stage, Words& words)
{
    stage.shell.keyUp(words.whole());
}

void typeText(Shell& shell, const std::string& text)
{
    for (const std::string& character : utf8Characters(text)) shell.keyPress(firstCharacter(character).code);
}

void typeCommand(Stage& stage, Words& words)
{
    typeText(stage.shell, words.text());
}

void enterCommand(Stage& stage, Words&)
{
    stage.shell.keyPress(enterKey);
}

void backspaceCommand(Stage& stage, Words&)
{
    stage.shell.keyPress(backspaceKey);
}

bool isTextBox(ControlKind kind)
{
    return kind == ControlKind::field || kind == ControlKind::display || kind == ControlKind::combo;
}

bool takesClicks(ControlKind kind)
{
    constexpr ControlKind kinds[] = {ControlKind::button, ControlKind::toggle,       ControlKind::option,
                                     ControlKind::entry,  ControlKind::checkedEntry, ControlKind::label,
                                     ControlKind::page};
    return isTextBox(kind) || std::ranges::find(kinds, kind) != std::end(kinds);
}

// A control that the user can reach: it stands on a form that is up, is visible and not greyed.
ControlId reachable(Stage& stage, std::string_view name)
{
    const ControlId id = controlNamed(name);
    const Controls& controls = stage.shell.session().controls;
    const bool up = controls[formOf(id)].visible && controls[id].visible;
    if (!up) throw Refusal{"not on the screen: " + std::string(name)};
    if (!controls[id].enabled) throw Refusal{"greyed: " + std::string(name)};
    return id;
}

void putCommand(Stage& stage, Words& words)
{
    const ControlId id = reachable(stage, words.word());
    if (!isTextBox(id.row().kind)) throw Refusal{"not a text box"};
    const std::string text = words.text();
    if (!stage.shell.takesInput(id)) return; // it stands behind a form that has to be answered
    stage.shell.giveFocus(id);
    Control& box = stage.shell.session().controls[id];
    setCaret(box, static_cast<int>(box.text.size())); // a text has no more characters than bytes
    box.anchor = 0;
    typeText(stage.shell, text);
}

void pressCommand(Stage& stage, Words& words)
{
    const ControlId id = reachable(stage, words.word());
    if (!takesClicks(id.row().kind)) throw Refusal{"the control takes no click"};
    stage.shell.click(id);
}

void focusCommand(Stage& stage, Words& words)
{
    const ControlId id = reachable(stage, words.word());
    const ControlKind kind = id.row().kind;
    const bool holdsFocus = isTextBox(kind) || kind == ControlKind::surface || kind == ControlKind::list ||
                            kind == ControlKind::button || kind == ControlKind::toggle ||
                            kind == ControlKind::option || kind == ControlKind::page;
    if (!holdsFocus) throw Refusal{"the control takes no focus"};
    stage.shell.giveFocus(id);
}

int rowNamed(const Control& list, const std::string& text)
{
    const auto found = std::ranges::find(list.rows, text);
    if (found == list.rows.end()) throw Refusal{"no such row: " + text};
    return static_cast<int>(found - list.rows.begin()); // a list has at most some thousand rows
}

void pickCommand(Stage& stage, Words& words)
{
    const ControlId id = reachable(stage, words.word());
    if (id.row().kind != ControlKind::list && id.row().kind != ControlKind::combo)
        throw Refusal{"not a list"};
    const Control& list = stage.shell.session().controls[id];
    std::string_view rest = words.rest();
    const bool byText = rest.starts_with('=');
    if (byText) rest.remove_prefix(1);
    Words row(rest);
    const int number =
        byText ? rowNamed(list, rest.starts_with('"') ? row.text() : std::string(rest)) : row.whole();
    if (number < 0 || number >= std::ssize(list.rows))
        throw Refusal{"no such row: " + std::to_string(number)};
    stage.shell.clickRow(id, number);
}

void scaleCommand(Stage& stage, Words& words)
{
    Scale scale;
    scale.left = words.coordinate();
    scale.top = words.coordinate();
    scale.width = words.coordinate();
    scale.height = words.coordinate();
    if (!(scale.width > 0 && scale.height > 0)) throw Refusal{"a world window has a width and a height"};
    stage.pic1.setScale(scale);
    stage.shell.resized();
}

void resizeCommand(Stage& stage, Words& words)
{
    constexpr int largest = 20000;
    const int width = words.whole();
    const int height = words.whole();
    if (width < 1 || height < 1 || width > largest || height > largest) throw Refusal{"no such size"};
    stage.surface.resizePixels(width, height, 1);
    stage.shell.resized();
}

void idleCommand(Stage& stage, Words&)
{
    stage.shell.rest();
}

void closeCommand(Stage& stage, Words&)
{
    stage.shell.closeForm(ids::mainForm);
}

// A file that is not there by that name is looked for in the program's folder, as the dialog would.
void dropCommand(Stage& stage, Words& words)
{
    const std::filesystem::path file = words.text();
    const std::filesystem::path beside = stage.shell.session().programFolder / file;
    const bool isHere = file.is_absolute() || std::filesystem::exists(file);
    stage.shell.dropFile(std::filesystem::absolute(isHere ? file : beside).lexically_normal().string());
}

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1); // of words: the line ends in a text

struct CommandRow {
    std::string_view name;
    void (*run)(Stage& stage, Words& words);
    std::size_t words; // behind the name
};

constexpr CommandRow commandRows[] = {
    {"move", moveCommand, 2},         {"down", downCommand, 3},       {"click", clickCommand, 2},
    {"cancel", cancelCommand, 2},     {"keydown", keyDownCommand, 1}, {"keyup", keyUpCommand, 1},
    {"type", typeCommand, anyNumber}, {"enter", enterCommand, 0},     {"backspace", backspaceCommand, 0},
    {"put", putCommand, anyNumber},   {"press", pressCommand, 1},     {"focus", focusCommand, 1},
    {"pick", pickCommand, anyNumber}, {"scale", scaleCommand, 4},     {"resize", resizeCommand, 2},
    {"close", closeCommand, 0},       {"idle", idleCommand, 0},       {"drop", dropCommand, anyNumber},
};

void runCommand(Stage& stage, std::string_view line)
{
    Words words(line);
    const std::string_view name = words.word();
    const auto* const row = std::ranges::find(commandRows, name, &CommandRow::name);
    if (row == std::end(commandRows)) throw Refusal{"no such command: " + std::string(name)};
    if (row->words != anyNumber && words.count() != row->words)
        throw Refusal{"not " + std::to_string(row->words) + " words"};
    row->run(stage, words);
}

void refuseAfterTheEnd(const Stage& stage, std::string_view command)
{
    if (stage.shell.ended() && command != "alive") throw Refusal{"the program has ended"};
}

// A question may hold "==" itself, in a text or the name of a file: what is expected is the longest JSON.
std::pair<std::string_view, std::string_view> questionAndExpected(std::string_view line)
{
    constexpr std::string_view equals = " == ";
    const auto first = line.find(equals);
    if (first == std::string_view::npos) throw Refusal{"an expect without =="};
    for (auto at = first; at != std::string_view::npos; at = line.find(equals, at + 1)) {
        const std::string_view expected = line.substr(at + equals.size());
        if (isJson(expected)) return {line.substr(0, at), expected};
    }
    throw Refusal{"not JSON: " + std::string(line.substr(first + equals.size()))};
}

void expect(Stage& stage, std::string_view line)
{
    const auto [question, expected] = questionAndExpected(line);
    refuseAfterTheEnd(stage, Words(question).word());
    const auto got = answer(stage, question);
    if (!got) throw Refusal{"not a question: " + std::string(question)};
    if (!agrees(*got, expected)) {
        constexpr int failed = 1;
        throw Refusal{"expected " + std::string(question) + " == " + std::string(expected) + ", got " + *got,
                      failed};
    }
}

} // namespace

std::optional<std::string> play(Stage& stage, std::string_view line)
{
    Words words(line);
    if (words.atEnd()) return std::nullopt;
    const std::string_view command = words.word();
    if (command.starts_with('#')) return std::nullopt;
    if (command == "expect") {
        expect(stage, words.rest());
        return std::nullopt;
    }
    refuseAfterTheEnd(stage, command);
    if (auto given = answer(stage, line)) return given;
    runCommand(stage, line);
    return std::nullopt;
}

} // namespace mirtane::play
