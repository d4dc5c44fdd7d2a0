#include "ops_text.h"

namespace mirtane::fake {

std::string textOf(const CanvasOp& op)
{
    std::string text(op.name);
    for (std::size_t i = 0; i < op.count; ++i) {
        text += " " + std::visit([](auto value) { return shortest(value); }, op.args[i]);
    }
    if (op.hasText) text += " " + op.text;
    return text;
}

Ops opsOn(RecordingCanvas& canvas)
{
    Ops ops;
    canvas.takeOps([&ops](const CanvasOp& op) { ops.push_back(textOf(op)); });
    return ops;
}

Ops only(const Ops& ops, const std::string& name)
{
    Ops found;
    for (const std::string& op : ops) {
        if (op.substr(0, op.find(' ')) == name) found.push_back(op);
    }
    return found;
}

Ops marks(const Ops& ops)
{
    Ops found;
    for (const std::string& op : ops) {
        const std::string name = op.substr(0, op.find(' '));
        if (name == "line" || name == "circle" || name == "arc" || name == "point" || name == "text")
            found.push_back(op);
    }
    return found;
}

} // namespace mirtane::fake
