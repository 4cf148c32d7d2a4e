#pragma once

#include "bios/ui/bioslist.h"
#include "bios/ui/biosmodel.h"
#include "bios/ui/biospanel.h"
#include "launch/emulatorchoice.h"
#include "launch/growingitems.h"
#include "launch/popupitems.h"
#include "platform/defaultscontroller.h"
#include "support/chosengame.h"
#include "support/scripteddesktop.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QUndoStack>

namespace tessera::test {

/// The BIOS panel with the shipped list and the pop-up of the preferences; no game runs.
struct BiosRoom {
    BiosRoom()
        : stored(folder.filePath("settings.ini"))
        , defaults(stored)
    {
        defaults.setInitialValues(QString(), QString());
        defaults.setText(keys::RomsPath, folder.path());
        setEmulator(QStringLiteral(TESSERA_FAKEEMULATOR));
        make();
    }

    void setEmulator(const QString& path) { defaults.setText(keys::ExecutionPath, path); }
    /// As at the next start.
    void make()
    {
        list.reset();
        panel = std::make_unique<BiosPanel>();
        list = std::make_unique<Bioslist>(
            BiosParts{desktop, defaults, *panel, undo, ownFile(), emulator, selection});
        list->awakeFromNib();
    }

    QString ownFile() const { return folder.filePath("bioslist.xml"); }
    QString info() const { return panel->text_infomation->text(); }
    BiosModel& model() const { return *panel->treeController_list; }
    QTreeView& view() const { return *panel->biosView; }
    void select(const QModelIndex& index) const { panel->biosView->setCurrentIndex(index); }
    QString selectedName() const
    {
        return view().currentIndex().siblingAtColumn(BiosModel::Name).data().toString();
    }

    /// What the stand-in prints for -listxml.
    void setListed(const char* text) const
    {
        QFile file(folder.filePath("list.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
        qputenv("FAKE_LISTXML", QFile::encodeName(file.fileName()));
    }

    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults stored;
    DefaultsController defaults;
    QUndoStack undo;
    BiosPopup popup{defaults};
    EmulatorChoice emulator{defaults, [] { return QString(); }};
    test::ChosenGame selection{SelectedGame{QStringLiteral("pong"), {}, {}}};
    std::unique_ptr<BiosPanel> panel;
    std::unique_ptr<Bioslist> list;
};

} // namespace tessera::test
