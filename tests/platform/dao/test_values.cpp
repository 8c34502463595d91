// Dates, booleans and text lengths as the bound boxes write and read them.
#include "platform/dao/StoreTestSupport.h"

using namespace Qt::StringLiterals;

namespace {

class Values : public StoreTest {
protected:
    std::unique_ptr<Recordset> pupils = db->OpenRecordset("élèves");
};

TEST_F(Values, DatesAreWrittenAndReadAsJJMMAAAA) {
    pupils->AddNew();
    pupils->setField("date_naissance_élève", "03/02/2019");
    pupils->setField("date_inscription_élève", "1/9/2022");
    pupils->Update();
    pupils->setBookmark(pupils->LastModified());
    EXPECT_EQ(pupils->field("date_naissance_élève").toString(), "03/02/2019");
    EXPECT_EQ(pupils->field("date_inscription_élève").toString(), "01/09/2022");
    pupils->AddNew(); // two-digit years follow the century rule
    pupils->setField("date_naissance_élève", "5/6/18");
    EXPECT_EQ(pupils->field("date_naissance_élève").toString(), "05/06/2018");
    pupils->setField("date_naissance_élève", "5/6/75");
    EXPECT_EQ(pupils->field("date_naissance_élève").toString(), "05/06/1975");
    pupils->setField("date_naissance_élève", "  "); // an empty box stores no date
    pupils->setField("date_radiation_élève", QVariant());
    pupils->Update();
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM élèves WHERE date_naissance_élève IS NULL AND "
                                "date_radiation_élève IS NULL")
                  ->RecordCount(),
              1);
}

// Another program may have left a text of a date's length that is no stored date: it reads as it stands.
TEST_F(Values, ADateColumnHoldingAnotherTextShowsItAsItStands) {
    const QStringList textes{"2019/02/03", "2019-02/03", "2019/02-03"};
    for (const QString& texte : textes)
        db->Execute("INSERT INTO élèves (date_naissance_élève) VALUES ('" + texte + "')");
    EXPECT_EQ(values("SELECT * FROM élèves", "date_naissance_élève"), textes);
}

TEST_F(Values, ATextThatIsNoDateIsRefusedAndTheBufferKeepsItsValue) {
    pupils->AddNew();
    pupils->setField("date_naissance_élève", "12/05/2018");
    for (const char* wrong : {"31/02/2019", "demain", "12/13/2018", "2018", "12/05/20189", "1/2"}) {
        SCOPED_TRACE(wrong);
        EXPECT_EQ(error_of([&] { pupils->setField("date_naissance_élève", wrong); }), 3421);
    }
    EXPECT_EQ(pupils->field("date_naissance_élève").toString(), "12/05/2018");
}

// Columns are found whatever their case; text longer than its column is refused, a memo has no limit.
TEST_F(Values, TextLongerThanItsColumnIsRefused) {
    EXPECT_EQ(pupils->fieldIndex("NOM_ÉLÈVE"), pupils->fieldIndex("nom_élève"));
    EXPECT_EQ(pupils->fieldIndex("inconnu"), -1);
    pupils->AddNew();
    EXPECT_EQ(error_of([&] { pupils->setField("inconnu", "x"); }), 3265);
    pupils->setField("nom_élève", QString(30, u'é'));
    EXPECT_EQ(error_of([&] { pupils->setField("nom_élève", QString(31, u'a')); }), 3163);
    EXPECT_EQ(error_of([&] { pupils->setField("cycle_classe_élève", "12"); }), 3163);
    pupils->setField("observations_générales", QString(5000, u'x')); // memo: no limit
    pupils->Update();
    pupils->setBookmark(pupils->LastModified());
    EXPECT_EQ(pupils->field("nom_élève").toString(), QString(30, u'é'));
    EXPECT_EQ(pupils->field("observations_générales").toString().size(), 5000);
}

TEST_F(Values, QuotesAndSpecialCharactersAreStoredAsTyped) {
    const QString name = u"D'Arc \"Jeanne\" ; DROP TABLE élèves; -- [x] 100% _"_s;
    add("élèves", {{"observations_générales", name}});
    EXPECT_EQ(values("élèves", "observations_générales"), QStringList{name});
}

} // namespace
