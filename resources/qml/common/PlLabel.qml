import QtQuick

// Words that stand for themselves, read out like everything else; those on a control are its name.
PlText {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.focusable: false
}
