#include "platform/files/SafeSave.h"
#include "support/Fixtures.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

TEST(SafeSave, AWriteThatFailsHalfWayLeavesTheOldFileAndNoLeftoverAndACompleteOneReplacesIt) {
    WorkFolder folder;
    const QString target = folder.write(u"liste.rtf"_s, "ancien");
    const VbError error = raised_by([&] {
        saveWhole(target, [](QIODevice& out) {
            writeAll(out, "début d'un nouveau contenu");
            throw VbError(61);
        });
    });
    EXPECT_EQ(error.number(), 61);
    EXPECT_EQ(contentOf(target), "ancien");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"liste.rtf"_s});
    saveWhole(target, [](QIODevice& out) { writeAll(out, "nouveau"); });
    EXPECT_EQ(contentOf(target), "nouveau");
}

TEST(SafeSave, AFolderThatIsNotThereIsRefusedWithNothingWritten) {
    WorkFolder folder;
    const QString target = folder.file(u"absent/liste.rtf"_s);
    EXPECT_NE(error_of([&] { saveWhole(target, [](QIODevice& out) { writeAll(out, "x"); }); }), 0);
    EXPECT_EQ(contentOf(target), "<absent>");
}

} // namespace
