// What a person is told in a box, and the buttons that answer it.
#pragma once

#include <string>
#include <vector>

struct localReport {
    enum class Kind { about, information, warning, critical, question };
    enum class Button { ok, cancel, yes, no };
    enum class Form { plain, html };

    Kind kind = Kind::information;
    std::u16string title = {};
    std::u16string text = {};
    std::vector<Button> buttons{Button::ok};
    Button defaultButton = Button::ok;
    Form form = Form::plain;

    // The text without markup: of HTML a break or paragraph becomes a line end, other tags go,
    // and the named letters (&lt; and so on) are written out.
    std::u16string plainText() const;
};
