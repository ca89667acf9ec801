#include "core/windows/barraDeMenu.h"

#include "core/windows/despacho.h"

#include <QMenuBar>

#include <vector>

using namespace Qt::StringLiterals;

namespace menu
{

namespace
{

/// A menu being filled.
struct Branch {
    QMenu *menu;
    QString letters; ///< its mnemonics
};

bool needsPatient(const Entry &entry)
{
    switch (entry.kind) {
    case Kind::PatientModal:
    case Kind::PatientChild:
    case Kind::PatientOperation:
    case Kind::PatientOrNothing:
    case Kind::ModalWithTag: // it opens without one, and has nothing to say
        return true;
    default:
        return false;
    }
}

void addItem(Branch &branch, const Entry &entry)
{
    QAction *action = branch.menu->addAction(withMnemonic(QString::fromUtf8(entry.caption), branch.letters));
    action->setObjectName(QString::fromUtf8(entry.item));
    action->setEnabled(available(entry));
    action->setData(needsPatient(entry));
    if (*entry.shortcut)
        action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
    if (entry.kind == Kind::HelpKey) // which any window answers by itself
        action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, action, [&entry] { choose(entry); });
}

/// The items of a menu and of those in it.
std::vector<const QAction *> leaves(const QMenu &menu)
{
    std::vector<const QAction *> all;
    for (const QAction *action : menu.actions()) {
        if (action->menu()) {
            const auto below = leaves(*action->menu());
            all.insert(all.end(), below.begin(), below.end());
        } else if (!action->isSeparator() && !action->objectName().isEmpty()) {
            all.push_back(action);
        }
    }
    return all;
}

/// Why nothing can be done in the menu now; empty when something can.
QString whyNothing(const QMenu &menu)
{
    bool anyEnabled = false, allNeedPatient = true;
    for (const QAction *action : leaves(menu)) {
        anyEnabled = anyEnabled || action->isEnabled();
        allNeedPatient = allNeedPatient && (!action->isEnabled() || action->data().toBool());
    }
    if (!anyEnabled)
        return u"Todavía no está en esta versión"_s;
    return allNeedPatient && activePatient().isEmpty() ? u"Abra una ficha"_s : QString();
}

/// A line at the head of the menu that cannot be chosen.
void addNote(QMenu &menu)
{
    auto *note = new QAction(&menu);
    note->setEnabled(false);
    menu.insertAction(menu.actions().value(0), note);
    const auto refresh = [&menu, note] {
        note->setText(whyNothing(menu));
        note->setVisible(!note->text().isEmpty());
    };
    refresh();
    QObject::connect(&menu, &QMenu::aboutToShow, note, refresh);
}

} // namespace

QString withMnemonic(const QString &caption, QString &taken)
{
    if (const QKeySequence own = QKeySequence::mnemonic(caption); !own.isEmpty()) {
        taken += own.toString().back().toLower();
        return caption;
    }
    const auto begins = [&](qsizetype i) { return i == 0 || !caption[i - 1].isLetterOrNumber(); };
    for (const bool atBeginning : {true, false})
        for (qsizetype i = 0; i < caption.size(); ++i) {
            const QChar letter = caption[i].toLower();
            if (begins(i) != atBeginning || letter.unicode() > 127 || !letter.isLetterOrNumber() ||
                taken.contains(letter))
                continue;
            taken += letter;
            return QString(caption).insert(i, u'&');
        }
    return caption;
}

void build(QMenuBar &bar)
{
    std::vector<Branch> branches; // the open menu at each depth
    for (const Entry &entry : tree()) {
        branches.resize(static_cast<std::size_t>(entry.depth));
        Branch *parent = branches.empty() ? nullptr : &branches.back();
        const QString caption = QString::fromUtf8(entry.caption);
        if (entry.kind == Kind::Folder) {
            branches.push_back({parent ? parent->menu->addMenu(withMnemonic(caption, parent->letters))
                                       : bar.addMenu(caption),
                                {}});
            branches.back().menu->setObjectName(caption);
        } else if (entry.kind == Kind::Separator)
            parent->menu->addSeparator();
        else
            addItem(*parent, entry);
    }
    for (QMenu *menu : bar.findChildren<QMenu *>())
        addNote(*menu);
}

} // namespace menu
