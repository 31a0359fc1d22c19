// The fields of a member and of an employer, described once for the dossier and for the entry of a new member, in the
// order of their boxes.
#pragma once

#include <QStringView>

#include <span>

struct MemberField
{
    QStringView column = {}; // of the member's or the employer's row; empty: a box that is stored nowhere
    QStringView label;
    QStringView boxInDossier = {}; // the name of its box; empty: the dossier has none
    QStringView boxInEntry = {};   // the same in the entry of a new member
    QStringView labelInEntry = {}; // the label there, where it differs
    bool isState = false;          // the list of states in the place of a text box
};

std::span<const MemberField> memberFields();
std::span<const MemberField> employerFields();
