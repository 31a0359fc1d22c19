// What is kept of a member and of his employer, each field said once: the dossier shows and changes it, the entry of a
// new member asks for it. The rows stand in the order of the boxes.
#pragma once

#include <QStringView>

#include <span>

struct MemberField
{
    QStringView column = {}; // of the member's or the employer's row; empty: a box that is stored nowhere
    QStringView label;
    QStringView boxInDossier = {}; // the name of its box; empty: the dossier has none
    QStringView boxInEntry = {};   // the same in the entry of a new member
    QStringView labelInEntry = {}; // where it is another
    bool isState = false;          // the list of states in the place of a text box
};

std::span<const MemberField> memberFields();
std::span<const MemberField> employerFields();
