#pragma once

#include <string>
#include <vector>

namespace tactora {

// One application in the applications sheet: the bundle identifier the profile stores and the
// name shown for it.
struct ApplicationRow {
    std::string bundleID;
    std::string name;

    bool operator==(const ApplicationRow&) const = default;
};

// The sheet in which the user sees and edits the applications of one profile: a table of
// them, an add pull-down listing running applications and an item that opens a panel to
// choose one, a remove button and a done button.
struct ApplicationsSheet {
    std::string title;
    std::string explanation;
    std::string nameColumn;
    std::string bundleColumn;
    std::string addButton;     // the add pull-down's accessibility title
    std::string removeButton;  // the remove button's accessibility title
    std::string chooseItem;    // the add pull-down's last item: choose an application bundle
    std::string chooseMessage;
    std::string doneButton;
    std::vector<ApplicationRow> applications;  // the profile's, in the order it keeps them
    std::vector<ApplicationRow> running;       // running applications that can be added

    bool operator==(const ApplicationsSheet&) const = default;
};

}  // namespace tactora
