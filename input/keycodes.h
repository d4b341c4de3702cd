#pragma once

namespace qor::KeyCode {

// The character codes (windows-1252) the key handlers treat specially.
enum Code : int {
    BackSpace = 8,
    Enter = 13,
    Escape = 27,
    Quote = 34,
    Percent = 37,
    Apostrophe = 39,
    Asterisk = 42,
    Minus = 45,
    Point = 46,
    AcuteAccent = 180,
    FirstAccentedLetter = 192,
};

} // namespace qor::KeyCode
