#include "app/typing/keys.h"

#include "text/utf8.h"

namespace mirtane {

void passKey(Control& control, char32_t code)
{
    if (code == backspaceKey) {
        backspaceIn(control);
    } else if (code >= U' ') {
        typeInto(control, encodeUtf8(code));
    }
}

} // namespace mirtane
