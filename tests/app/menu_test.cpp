#include "core/windows/despacho.h"
#include "core/windows/menu.h"
#include "subsystems.h"

#include <gtest/gtest.h>

#include <QFile>

#include <set>

namespace
{

/// Windows and operations that the menu and the toolbar lead to and that are not built yet: their items stay
/// disabled. Whoever builds one takes it off here.
const std::set<std::string> notBuiltYet{
    "panAlgorritmos", "panEHC", "panEditorMMedia", "panEvalEvolFisica", "panImagenes", "panMadNeurol",
};

bool leadsIntoTheProgram(menu::Kind kind)
{
    using enum menu::Kind;
    static const std::set<menu::Kind> kinds{Child,        NewChild,        ChildMaximised, Modal,
                                            ModalWithTag, PatientModal,    PatientChild,   PatientOrNothing,
                                            Operation,    PatientOperation};
    return kinds.contains(kind);
}

std::vector<menu::Entry> entries()
{
    const auto tree = menu::tree();
    std::vector<menu::Entry> all(tree.begin(), tree.end());
    for (const menu::Button &button : menu::toolbar())
        all.push_back(menu::asEntry(button));
    return all;
}

} // namespace

TEST(Menu, leadsToEveryWindowThatIsBuilt)
{
    app::prepare();
    std::set<std::string> closed;
    for (const menu::Entry &entry : entries())
        if (leadsIntoTheProgram(entry.kind) && !menu::available(entry))
            closed.insert(entry.target);
    for (const std::string &name : closed)
        EXPECT_TRUE(notBuiltYet.contains(name)) << name << " is not registered";
    for (const std::string &name : notBuiltYet)
        EXPECT_TRUE(closed.contains(name)) << name << " is built by now";
}

TEST(Menu, itemsGoByNamesOfTheirOwn)
{
    std::set<std::string> names;
    for (const menu::Entry &entry : menu::tree()) {
        const bool isNew = names.insert(entry.item).second;
        EXPECT_TRUE(isNew || !*entry.item) << entry.item;
    }
}

TEST(Toolbar, everyButtonHasItsPicture)
{
    for (const menu::Button &button : menu::toolbar())
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/%1.svg").arg(button.icon))) << button.caption;
}
