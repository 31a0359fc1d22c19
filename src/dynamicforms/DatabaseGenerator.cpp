#include "dynamicforms/DatabaseGenerator.h"

#include "dynamicforms/LayoutWriter.h"
#include "dynamicforms/TableGeneration.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/ErrorHandling.h"
#include "shell/store/DataStore.h"

#include <tuple>

using namespace Qt::Literals::StringLiterals;

using runtime::Value;

namespace {

constexpr qint16 twipsPerGridSize = 50;
constexpr int defaultGridSize = 3; // its place in the list, from 0

// A place is kept as a single and stored as such.
Value singleOf(double place)
{
    return Value(double(float(place)));
}

} // namespace

void DatabaseGenerator::Form_Load()
{
    runtime::endSilently([this] { loadForm(); });
}

// Ends early for a form without fields: it has no upper bound (error 9), and no grid size gets selected.
void DatabaseGenerator::loadForm()
{
    try {
        readForm();
    } catch (...) {
        m_readFailure = std::current_exception();
        throw;
    }
    if (m_rows.upperBound() > 1)
        ShowTabFields();
    txtGridSize->setSelected(defaultGridSize);
    if (chkGrid->Value() == 1)
        DrawGrid();
}

// What stands when a step fails stays: a tab whose name or description is Null, and the row of a field without a place.
void DatabaseGenerator::readForm()
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset rows = openRows(connection, u"select * from TabInfo where TabEdit = 1"_s);
    TabStrip1->Clear();
    m_rows.countUp();
    for (; !rows.Eof(); rows.MoveNext()) {
        QString caption;
        QString toolTip;
        try {
            caption = runtime::toText(rows[u"TabNam"].Value());
            toolTip = runtime::toText(rows[u"TabDescription"].Value());
        } catch (...) {
            TabStrip1->add({}, caption, toolTip); // with what there is by then
            throw;
        }
        TabStrip1->add({}, caption, toolTip);
    }
    rows.Close();
    rows = openRows(connection, u"SELECT FieldInfo.*, TabInfo.TabNam, TabInfo.TabDescription FROM FieldInfo INNER JOIN "
                                "TabInfo ON FieldInfo.TabId = TabInfo.TabId where FieldEdit = 1 "
                                "ORDER BY FieldDisplayOrder"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        FieldRow &row = m_rows.next();
        takeNames(row, rows);
        // A save leaves the order Null for the fields of the page that is selected then. They are read as 0.
        if (const Value order = rows[u"FieldDisplayOrder"].Value(); !order.isNull())
            row.RowFieldDisplayOrder = runtime::toInteger(order);
        takePlaces(row, rows);
        m_rows.countUp();
    }
    connection.Close();
}

// A form that was not read whole is not written back: the rows behind the failure would be lost without a word. The
// failure that ended the load silently is raised instead, before anything is deleted.
void DatabaseGenerator::SaveLayout()
{
    if (m_readFailure)
        std::rethrow_exception(m_readFailure);
    LayoutWriter layout(TabStrip1->Count());
    for (int tab = 1; tab <= TabStrip1->Count(); ++tab) {
        layout.addPage(TabStrip1->Caption(tab), TabStrip1->ToolTipText(tab));
        if (tab == TabStrip1->SelectedItem())
            saveCanvas(layout);
        else
            saveStoredRows(layout, TabStrip1->Caption(tab));
    }
    layout.close();
}

void DatabaseGenerator::saveStoredRows(LayoutWriter &layout, const QString &caption)
{
    for (int k = 0; k <= m_rows.upperBound(); ++k) {
        const FieldRow &row = m_rows[k];
        if (row.RowTabNam == caption)
            layout.addField({row.RowFieldName, row.RowFieldDescription, row.RowFieldDisplayOrder,
                             Value(row.RowFieldLeft), Value(row.RowFieldTop), Value(row.RowLabelLeft),
                             Value(row.RowLabelTop), Value(row.RowFieldWidth)});
    }
}

void DatabaseGenerator::saveCanvas(LayoutWriter &layout)
{
    for (int index = 1; index < m_surface->Text1.Count(); ++index) {
        const CanvasTextBox &box = *m_surface->Text1(index);
        const CanvasLabel &label = *m_surface->Label1(index);
        if (!box.toolTip().isEmpty())
            layout.addField({box.toolTip(), label.toolTip(), std::nullopt, singleOf(box.Left()), singleOf(box.Top()),
                             singleOf(label.Left()), singleOf(label.Top()), singleOf(box.Width())});
    }
}

void DatabaseGenerator::ShowTabFields()
{
    runtime::endSilently([this] { m_surface->showFields(); });
}

qint16 DatabaseGenerator::gridStep() const
{
    return qint16(runtime::toInteger(Value(txtGridSize->Text())) * twipsPerGridSize);
}

void DatabaseGenerator::DrawGrid()
{
    runtime::endSilently([this] { m_surface->drawGrid(gridStep()); });
}

void DatabaseGenerator::CreateAccessTable()
{
    QStringList captions;
    for (int tab = 1; tab <= TabStrip1->Count(); ++tab)
        captions << TabStrip1->Caption(tab);
    generateTables(captions, m_rows);
}

void DatabaseGenerator::Cdcd(const QString &TableName)
{
    createTable(TableName, m_rows);
}

void DatabaseGenerator::cmdTableAdd_Click()
{
    if (txtTableName->text().isEmpty()) {
        desktop::MsgBox(u"Invalid Tab Name"_s);
        return;
    }
    TabStrip1->add({}, txtTableName->text(), txtTableDescription->text());
    cmdTabeClear_Click();
}

void DatabaseGenerator::cmdTabeClear_Click()
{
    txtTableDescription->clear();
    txtTableName->clear();
}

void DatabaseGenerator::cmdFieldAdd_Click()
{
    if (txtFieldName->text().isEmpty()) {
        desktop::MsgBox(u"Invalid Field Name"_s);
        return;
    }
    if (TabStrip1->Count() == 0) {
        desktop::MsgBox(u"Invalid Form Name"_s);
        return;
    }
    m_surface->addField(txtFieldName->text(), txtFieldDescription->text());
    cmdFieldClear_Click();
    m_rows.countUp();
}

void DatabaseGenerator::cmdFieldClear_Click()
{
    txtFieldName->clear();
    txtFieldDescription->clear();
}

// Tables are made after either answer; it only decides whether the layout is saved before.
void DatabaseGenerator::cmdGenerateDatebase_Click()
{
    if (desktop::MsgBox(u"Save Current Layout before proceeding"_s, desktop::vbYesNo, u"Quillon"_s) == desktop::vbYes)
        SaveLayout();
    CreateAccessTable();
}

void DatabaseGenerator::cmdSave_Click()
{
    SaveLayout();
}

void DatabaseGenerator::cmdExit_Click()
{
    Unload();
}

// Any failure brings this message: error 9 before any box was gathered, 340 when a change of pages has unloaded one.
void DatabaseGenerator::Toolbar1_ButtonClick(QAction *button)
{
    using Alignment = DesignSurface::Alignment;
    const bool succeeded = runtime::endSilently([this, button] {
        const QString tool = button->text();
        if (tool == u"Lock Objects")
            m_surface->ObjectsLocked = true;
        else if (tool == u"Unlock Objects")
            m_surface->ObjectsLocked = false;
        else if (tool == u"Align Top")
            m_surface->align(Alignment::Top);
        else if (tool == u"Align Left")
            m_surface->align(Alignment::Left);
        else if (tool == u"Same Width")
            m_surface->align(Alignment::Width);
    });
    if (!succeeded)
        desktop::MsgBox(u"Please select two or more objects"_s);
}

void DatabaseGenerator::TabStrip1_BeforeClick()
{
    m_surface->keepFields();
}

void DatabaseGenerator::TabStrip1_Click()
{
    ShowTabFields();
}

void DatabaseGenerator::Picture1_Paint()
{
    if (chkGrid->Value() == 1)
        DrawGrid();
}

// The nearest grid line is computed and not used: no control is ever snapped to the grid. Its only visible effect is
// error 13 while no grid size is selected.
void DatabaseGenerator::Picture1_MouseMove(float x)
{
    std::ignore = snappedToGrid(x, gridStep());
}

void DatabaseGenerator::chkGrid_Click()
{
    Picture1->repaint();
}

void DatabaseGenerator::txtGridSize_Click()
{
    if (chkGrid->Value() == 1)
        Picture1->repaint();
}

void DatabaseGenerator::txtWidth_Change()
{
    runtime::endSilently([this] {
        if (txtWidth->text().isEmpty())
            return;
        const qint16 index = runtime::toInteger(Value(txtWidth->Tag));
        m_surface->setWidth(index, runtime::toInteger(Value(txtWidth->text())));
    });
}
