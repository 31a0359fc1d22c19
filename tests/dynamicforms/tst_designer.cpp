// The designer: what it loads and saves, what the mouse does on its canvas, and the tables that it makes.
#include "dynamicforms/OpenDesigner.h"
#include "support/ShownWork.h"
#include "support/StoreTest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *noForm = "DELETE FROM FieldInfo WHERE FieldEdit = 1; DELETE FROM TabInfo WHERE TabEdit = 1;";

// Two pages of the designer's beside the fixed one: "Work" with three fields, "Home" with one, in the order of loading
// Post, Firm, Street, Desk.
constexpr const char *twoPages =
    "INSERT INTO TabInfo (TabId, TabNam, TabDescription) VALUES (11, 'Work', 'At work'), (12, 'Home', 'At home');"
    "INSERT INTO FieldInfo (TabId, FieldName, FieldDescription, FieldDisplayOrder, fieldLeft, fieldTop, labelLeft,"
    " labelTop, fieldWidth) VALUES"
    " (11, 'Firm', 'Employer', 2, 3000, 600, 300, 600, 1500), (11, 'Desk', 'Room', 4, 3000, 1200, 300, 1200, 1500),"
    " (12, 'Street', 'Road', 3, 3000, 300, 300, 300, 2400), (11, 'Post', 'Rank', 1, 3000, 1800, 300, 1800, 1500);";

constexpr const char *storedFields =
    "SELECT TabNam, FieldName, FieldDescription, FieldDisplayOrder, labelLeft, labelTop, fieldLeft, fieldTop, "
    "fieldWidth FROM FieldInfo JOIN TabInfo USING (TabId) WHERE FieldEdit = 1 ORDER BY FieldInfo.rowid";
constexpr const char *storedPages = "SELECT TabNam, TabDescription FROM TabInfo WHERE TabEdit = 1 ORDER BY TabId";

QStringList columnsOf(const DataFolder &folder, const QByteArray &table)
{
    return folder.rows("SELECT name FROM pragma_table_info('" + table + "')");
}

} // namespace

class tst_Designer : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty, twoPages); }
    void cleanup() { close(); }

    // Names as they stand, as "R & D" and "<b>": no shortcut and no rich text.
    void aFormIsShownAsItWasStored()
    {
        m_folder->execute("UPDATE TabInfo SET TabNam = 'R & D && <b>x</b>' WHERE TabId = 11;"
                          "UPDATE FieldInfo SET FieldName = '<b>A</b> & B' WHERE FieldName = 'Post'");
        OpenDesigner designer;
        QCOMPARE(designer.window.Caption(), u"Tolmark Database/Form Generator"_s);
        QCOMPARE(designer.window.txtGridSize->Text(), u"4"_s);
        QCOMPARE(designer.window.TabStrip1->Caption(1), u"R & D && <b>x</b>"_s);
        QCOMPARE(desktop::captionOf(designer.window.TabStrip1->tabText(0)), u"R & D && <b>x</b>"_s);
        QCOMPARE(designer.window.TabStrip1->ToolTipText(2), u"At home"_s);
        QCOMPARE(designer.fields(), (QStringList{u"<b>A</b> & B 300,1800 3000,1800 1500"_s,
                                                 u"Firm 300,600 3000,600 1500"_s, u"Desk 300,1200 3000,1200 1500"_s}));
        QVERIFY(designer.label(1)->textFormat() == Qt::PlainText && !designer.label(1)->buddy());
        designer.clickTab(2);
        QCOMPARE(designer.fields(), QStringList{u"Street 300,300 3000,300 2400"_s});
        designer.window.cmdSave->click();
        QCOMPARE(m_folder->rows(storedPages).value(0), u"R & D && <b>x</b>|At work"_s);
    }

    void fieldsThatAreLoadedAndUnseen()
    {
        m_folder->execute("UPDATE FieldInfo SET labelLeft = '' WHERE FieldName = 'Firm'");
        OpenDesigner ended; // by the row without a place
        QCOMPARE(ended.fields().size(), 1);
        QVERIFY(ended.box(2) && !ended.box(3));
        m_folder->execute("DELETE FROM FieldInfo WHERE FieldEdit = 1 AND FieldName <> 'Post'");
        OpenDesigner lonely;
        QCOMPARE(lonely.fields(), QStringList());
        lonely.clickTab(1);
        QCOMPARE(lonely.fields().size(), 1);
    }

    // The load ends where it meets the Null, with what stands until then, and what it did not read is not lost.
    void aFormThatWasNotReadWholeIsNotSaved()
    {
        for (const auto &[change, expected] :
             {std::pair("UPDATE TabInfo SET TabNam = NULL WHERE TabId = 11", u""_s),
              {"UPDATE TabInfo SET TabDescription = NULL WHERE TabId = 11", u"Work"_s},
              {"UPDATE FieldInfo SET FieldName = NULL WHERE FieldName = 'Street'", u"Work Home"_s},
              {"UPDATE FieldInfo SET fieldLeft = NULL WHERE FieldName = 'Street'", u"Work Home"_s}}) {
            init();
            m_folder->execute(change);
            const QStringList stored = m_folder->rows(storedPages) + m_folder->rows(storedFields);
            OpenDesigner designer;
            QStringList captions;
            for (int tab = 1; tab <= designer.window.TabStrip1->Count(); ++tab)
                captions << designer.window.TabStrip1->Caption(tab);
            QCOMPARE(captions.join(u' '), expected);
            QCOMPARE(designer.fields(), QStringList());
            designer.window.cmdSave->click();
            QCOMPARE(m_errors->takeNumber(), 94);
            QCOMPARE(m_folder->rows(storedPages) + m_folder->rows(storedFields), stored);
            if (QByteArrayView(change).contains("fieldLeft")) { // what was read of its row stands
                designer.generate(QMessageBox::No);
                QCOMPARE(columnsOf(*m_folder, "Home").mid(3), QStringList(u"Street"_s));
            }
        }
    }

    void withoutAFormTwoMovesAreFatal()
    {
        m_folder->execute(noForm);
        OpenDesigner designer;
        QCOMPARE(designer.window.TabStrip1->Count(), 0);
        QCOMPARE(designer.window.txtGridSize->Text(), QString());
        QTest::mouseMove(designer.window.Picture1, {40, 40});
        QCOMPARE(m_errors->takeNumber(), 13);
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        designer.addField({});
        designer.addField(u"Phone"_s);
        designer.addTab({});
        QCOMPARE(boxes.seen.value(0).text, u"Invalid Field Name"_s);
        QCOMPARE(boxes.seen.value(1).text, u"Invalid Form Name"_s);
        QCOMPARE(boxes.seen.value(2).text, u"Invalid Tab Name"_s);
        designer.window.cmdFieldClear->click();
        QCOMPARE(designer.window.txtFieldName->text(), QString());
        designer.addTab(u"One"_s);
        designer.addTab(u"Two"_s);
        designer.clickTab(2);
        QCOMPARE(m_errors->takeNumber(), 9);
    }

    void theCornerFollowsThePointer()
    {
        OpenDesigner designer;
        OpenDesigner::drag(*designer.box(1), 60, -30);
        QCOMPARE(designer.fields().value(0), u"Post 300,1800 3060,1770 1500"_s);
        QCOMPARE(designer.window.txtWidth->text(), u"1500"_s);
        OpenDesigner::drag(*designer.label(1), 15, 15, Qt::ShiftModifier); // which means nothing to a label
        QCOMPARE(designer.fields().value(0), u"Post 315,1815 3060,1770 1500"_s);
        OpenDesigner::drag(*designer.box(2), 60, 60, Qt::ShiftModifier);
        designer.press(u"Lock Objects"_s);
        OpenDesigner::drag(*designer.box(3), 60, 60);
        OpenDesigner::drag(*designer.label(3), 60, 60);
        QCOMPARE(designer.fields().sliced(1),
                 (QStringList{u"Firm 300,600 3000,600 1500"_s, u"Desk 300,1200 3000,1200 1500"_s}));
        QCOMPARE(designer.window.txtWidth->Tag, u"3"_s); // a locked box is still the chosen one
        designer.press(u"Unlock Objects"_s);
        OpenDesigner::drag(*designer.box(3), 60, 60);
        OpenDesigner::drag(*designer.label(3), 45, 45);
        designer.clickTab(2);
        designer.clickTab(1); // keeps all places but those of the first row
        QCOMPARE(designer.fields(), (QStringList{u"Post 300,1800 3000,1800 1500"_s, u"Firm 300,600 3000,600 1500"_s,
                                                 u"Desk 345,1245 3060,1260 1500"_s}));
    }

    // A field whole, or its label alone; what a drag by as much would store.
    void arrowKeysMoveFields()
    {
        OpenDesigner designer;
        const auto press = [&designer](int box, Qt::Key key, Qt::KeyboardModifiers held = {}) {
            QTest::keyClick(designer.box(box), key, held);
        };
        press(1, Qt::Key_Right);
        press(1, Qt::Key_Up, Qt::ShiftModifier);
        press(1, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier | Qt::KeypadModifier);
        QCOMPARE(designer.fields().value(0), u"Post 500,1800 3200,1780 1500"_s);
        designer.window.txtGridSize->setSelected(9);
        press(2, Qt::Key_Up);
        press(2, Qt::Key_Up); // would leave the canvas
        press(2, Qt::Key_Left, Qt::AltModifier);
        designer.press(u"Lock Objects"_s);
        press(2, Qt::Key_Down);
        designer.press(u"Unlock Objects"_s);
        QCOMPARE(designer.fields().value(1), u"Firm 300,100 3000,100 1500"_s);
        for (int presses = 0; presses < 20; ++presses)
            press(3, Qt::Key_Right);
        QCOMPARE(designer.fields().value(2),
                 u"Desk 6800,1200 9500,1200 1500"_s); // a further step would leave the canvas
        press(3, Qt::Key_Left);
        designer.window.cmdSave->click();
        QCOMPARE(m_folder->rows(storedFields).value(2), u"Work|Desk|Desk|NULL|6300.0|1200.0|9000.0|1200.0|1500.0"_s);
    }

    // Those that the keys gathered move and align together; a field beside them moves alone.
    void keysGatherFields()
    {
        OpenDesigner designer;
        QTest::keyClick(designer.box(1), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), designer.box(2));
        QTest::keyClick(designer.box(2), Qt::Key_Space, Qt::ControlModifier); // is gathered already
        QTest::keyClick(designer.box(2), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(designer.box(3), Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(designer.fields(), (QStringList{u"Post 320,1800 3020,1800 1500"_s, u"Firm 320,600 3020,600 1500"_s,
                                                 u"Desk 280,1200 2980,1200 1500"_s}));
        QCOMPARE(designer.box(1)->accessibleDescription() + designer.box(3)->accessibleDescription(), u"Chosen"_s);
        designer.press(u"Align Top"_s);
        QCOMPARE(designer.fields().value(1), u"Firm 320,600 3020,1800 1500"_s);
        QTest::keyClick(designer.box(3), Qt::Key_A, Qt::ControlModifier);
        designer.press(u"Align Left"_s); // to the box in which the key was pressed
        QCOMPARE(designer.fields().value(0), u"Post 320,1800 2980,1800 1500"_s);
        QTest::keyClick(designer.box(2), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(designer.box(2), Qt::Key_Escape);
        designer.press(u"Align Top"_s);
        QCOMPARE(designer.fields().value(2), u"Desk 280,1200 2980,1200 1500"_s);
        QCOMPARE(designer.box(1)->accessibleDescription(), QString());
    }

    void gatheredBoxesFollowTheFirst()
    {
        OpenDesigner designer;
        designer.window.txtWidth->setText(u"900"_s); // of no box yet
        designer.box(3)->setFocus();
        QCOMPARE(designer.window.txtWidth->text(), u"1500"_s);
        for (const QString &text : {u"3300"_s, u"wide"_s, u""_s, u"40000"_s})
            designer.window.txtWidth->setText(text);
        QCOMPARE(designer.label(3)->Width(), 3300);
        {
            BoxAnswers boxes({QMessageBox::Ok});
            designer.press(u"Align Top"_s);
            QCOMPARE(boxes.seen.value(0).text, u"Please select two or more objects"_s);
        }
        designer.gather(3);
        designer.gather(1);
        designer.gather(1);
        designer.press(u"Align Top"_s);
        QCOMPARE(designer.fields(), (QStringList{u"Post 300,1800 3000,1200 1500"_s, u"Firm 300,600 3000,600 1500"_s,
                                                 u"Desk 300,1200 3000,1200 3300"_s}));
        designer.press(u"Same Width"_s); // nothing is gathered any more, and that is no failure any more
        designer.gather(3);
        designer.gather(2);
        designer.press(u"Same Width"_s);
        QCOMPARE(designer.box(2)->Width(), 3300);
        designer.box(1)->setLeft(1200);
        designer.gather(1);
        designer.gather(3);
        designer.press(u"Align Left"_s);
        QCOMPARE(designer.box(3)->Left(), 1200);
        designer.gather(3);
        designer.gather(1);
        designer.clickTab(2); // where there is no third box
        BoxAnswers boxes({QMessageBox::Ok});
        designer.press(u"Align Left"_s);
    }

    void pointsShowOnlyWithTheGrid()
    {
        OpenDesigner designer;
        const auto isPoint = [&designer](int x, int y) {
            const QImage shown = designer.window.Picture1->grab().toImage();
            return shown.pixelColor(desktop::pixels(x), desktop::pixels(y)) ==
                   designer.window.palette().color(QPalette::WindowText);
        };
        QVERIFY(isPoint(10200, 7000)); // the last of all, under no control
        QVERIFY(!isPoint(10100, 7000));
        designer.window.txtGridSize->setSelected(1);
        QVERIFY(isPoint(10100, 7000));
        designer.window.chkGrid->click();
        QVERIFY(!isPoint(10200, 7000));
    }

    // Names go where the counter says, places where the control's number says: here a row apart.
    void aNewFieldIsTwoRowsAtOnce()
    {
        m_folder->execute(noForm);
        OpenDesigner designer;
        designer.addTab(u"Contact"_s, u"How to reach"_s);
        designer.addField(u"Phone"_s, u"With prefix"_s);
        designer.addField(u"Fax"_s);
        QCOMPARE(designer.fields(), (QStringList{u"Phone 240,295 3120,295 2895"_s, u"Fax 240,710 3120,710 2895"_s}));
        QCOMPARE(designer.label(1)->toolTip(), u"With prefix"_s);
        designer.window.cmdSave->click();
        QCOMPARE(m_folder->rows(storedFields),
                 (QStringList{u"Contact|Phone|With prefix|NULL|240.0|295.0|3120.0|295.0|2895.0"_s,
                              u"Contact|Fax||NULL|240.0|710.0|3120.0|710.0|2895.0"_s}));
        QCOMPARE(m_folder->rows(storedPages), QStringList{u"Contact|How to reach"_s});
        designer.addTab(u"Other"_s);
        designer.clickTab(2);
        designer.window.cmdSave->click(); // the first row of all has no place
        QCOMPARE(m_errors->takeNumber(), -2147217887);
        QCOMPARE(m_folder->rows(storedFields), QStringList());
    }

    // The grid counts its columns with the counter of the rows: 52 with the size that is selected at first.
    void theGridMovesTheNextRow()
    {
        OpenDesigner designer;
        designer.clickTab(2);
        const auto repaint = [&designer] { designer.window.Picture1->repaint(); };
        repaint();
        designer.addField(u"Lost"_s);
        repaint();
        designer.addField(u"Kept"_s); // in the row of the one before
        QCOMPARE(designer.fields().size(), 3);
        designer.generate(QMessageBox::No);
        QCOMPARE(columnsOf(*m_folder, "Home"),
                 (QStringList{u"HomeId"_s, u"PersonalInformationId"_s, u"HomeDate"_s, u"Street"_s, u"Kept"_s}));
        designer.window.txtGridSize->setSelected(9);
        repaint(); // leaves 21
        designer.addField(u"Last"_s);
        designer.clickTab(1);
        designer.clickTab(2);
        QCOMPARE(designer.fields().size(), 1); // what stood beyond is cut off, and "Last" has no place
    }

    void savingWritesTheFormAnew()
    {
        m_folder->execute("UPDATE FieldInfo SET FieldDisplayOrder = 7 WHERE FieldName = 'Street'");
        OpenDesigner designer;
        OpenDesigner::drag(*designer.box(3), 150, 150);
        designer.window.cmdSave->click();
        designer.window.cmdSave->click();
        QCOMPARE(m_folder->rows(storedFields), (QStringList{u"Work|Post|Post|NULL|300.0|1800.0|3000.0|1800.0|1500.0"_s,
                                                            u"Work|Firm|Firm|NULL|300.0|600.0|3000.0|600.0|1500.0"_s,
                                                            u"Work|Desk|Desk|NULL|300.0|1200.0|3150.0|1350.0|1500.0"_s,
                                                            u"Home|Street|Road|7|300.0|300.0|3000.0|300.0|2400.0"_s}));
        QCOMPARE(m_folder->rows(storedPages), (QStringList{u"Work|At work"_s, u"Home|At home"_s}));
        QCOMPARE(m_folder->row("SELECT count(*) FROM FieldInfo WHERE FieldEdit = 0"), u"14"_s);
        OpenDesigner again;
        QCOMPARE(again.fields().size(), 3); // though they have no order
    }

    void captionsThatTheSaveCannotTellOrWrite()
    {
        OpenDesigner designer;
        designer.addTab(u"Home"_s);
        designer.window.cmdSave->click();
        QCOMPARE(m_folder->row("SELECT count(*), count(DISTINCT TabId) FROM FieldInfo WHERE FieldName = 'Street'"),
                 u"2|1"_s); // on the first page of that caption
        designer.addTab(u"Member's"_s);
        designer.window.cmdSave->click();
        QCOMPARE(m_errors->takeNumber(), -2147217900);
        QCOMPARE(m_folder->rows(storedPages),
                 (QStringList{u"Work|At work"_s, u"Home|At home"_s, u"Home|"_s, u"Member's|"_s}));
        QCOMPARE(m_folder->rows(storedFields).size(), 5); // written before it came to that page
    }

    void aTableGrowsWithItsPage()
    {
        m_folder->execute(noForm);
        OpenDesigner designer;
        designer.addTab(u"Contact Details"_s);
        designer.addField(u"Phone"_s);
        designer.addField(u"Fax"_s);
        designer.addField(u"Fax"_s);
        designer.generate(QMessageBox::No);
        QCOMPARE(m_folder->rows(storedPages), QStringList());
        m_folder->execute("INSERT INTO \"Contact Details\" (PersonalInformationId, Phone) VALUES (1, '555')");
        designer.addField(u"Mail"_s);
        ShownWork shown;
        designer.generate(QMessageBox::Yes);
        QCOMPARE(shown.takeTexts(), (QStringList{u"Saving page 1 of 1"_s, u"Generating table 1 of 1"_s}));
        QCOMPARE(m_folder->rows(storedPages).size(), 1);
        QCOMPARE(
            m_folder->rows("SELECT * FROM (SELECT name, type, \"notnull\" FROM "
                           "pragma_table_info('Contact Details')) WHERE name NOT LIKE '%Id'"),
            (QStringList{u"ContactDetailsDate|DATETIME|1"_s, u"Phone|TEXT|0"_s, u"Fax|TEXT|0"_s, u"Mail|TEXT|0"_s}));
        QCOMPARE(m_folder->row("SELECT ContactDetailsId, PersonalInformationId, ContactDetailsDate = date('now', "
                               "'localtime') || ' 00:00:00', Phone, Mail FROM \"Contact Details\""),
                 u"1|1|1|555|NULL"_s);
    }

    void tablesOfTheStoreGainColumnsAlone()
    {
        m_folder->execute("UPDATE TabInfo SET TabNam = 'MemberType' WHERE TabId = 11;"
                          "UPDATE FieldInfo SET FieldName = 'MemberType' WHERE FieldName = 'Firm';"
                          "CREATE VIEW Home AS SELECT 1 AS One");
        const QString before = m_folder->row("SELECT group_concat(MemberType) FROM MemberType");
        OpenDesigner designer;
        designer.generate(QMessageBox::No);
        QCOMPARE(columnsOf(*m_folder, "MemberType").sliced(2), (QStringList{u"Post"_s, u"Desk"_s}));
        QCOMPARE(m_folder->row("SELECT group_concat(MemberType) FROM MemberType"), before);
        QCOMPARE(m_folder->row("SELECT type FROM sqlite_master WHERE name = 'Home'"), u"view"_s);
    }
};

QTEST_MAIN(tst_Designer)
#include "tst_designer.moc"
