#include "dynamicforms/RecordPage.h"

#include "parts/RowTexts.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/runtime/ErrorHandling.h"
#include "platform/runtime/ProviderError.h"
#include "shell/store/DataStore.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

using desktop::Label;
using desktop::TextBox;
using runtime::everyStep;

RecordPage::RecordPage(desktop::Frame &frame, FieldRows &rows) : Label1(u"Label1"_s), Text1(u"Text1"_s), m_rows(rows)
{
    Label1.add(0, &frame)->Move(720, -120, 2655, 375);
    Text1.add(0, &frame)->Move(3720, -120, 8775, 375);
    Label1(0)->setVisible(false);
    Text1(0)->setVisible(false);
}

void RecordPage::setLocked(bool locked)
{
    for (int index = 0; index < Text1.Count(); ++index)
        Text1(index)->setReadOnly(locked);
}

void RecordPage::unloadFields()
{
    const int loaded = Label1.Count();
    for (int index = 1; index < loaded; ++index)
        everyStep([&] { Label1.Unload(index); }, [&] { Text1.Unload(index); });
}

void RecordPage::showField(const FieldRow &row)
{
    Label &label = *Label1.Load(Label1.Count());
    TextBox &box = *Text1.Load(Text1.Count());
    label.setElides();
    box.setAccessibleName(row.RowFieldName);
    QWidget::setTabOrder(Text1(Text1.Count() - 2), &box);
    placeField(label, box, row, [](const auto &step) { everyStep(step); });
    label.setToolTip(row.RowFieldName);
    box.setToolTip(row.RowFieldName);
    label.setVisible(true);
    box.setVisible(true);
    label.setText(desktop::withoutMnemonic(row.RowFieldName));
    label.setBuddy(&box);
}

void RecordPage::showFields(const QString &caption)
{
    unloadFields();
    for (int k = 0; k < m_rows.upperBound(); ++k) {
        if (m_rows[k].RowTabNam == caption)
            everyStep([&] { showField(m_rows[k]); });
    }
}

template <class Visit> void RecordPage::forEachBox(Visit visit) const
{
    for (int index = 1; index < Text1.Count(); ++index) {
        TextBox &box = *Text1(index);
        if (!box.toolTip().isEmpty())
            visit(box, box.toolTip());
    }
}

void RecordPage::fillFromStore(const QString &caption, qint16 recordId)
{
    m_readFailure.reset();
    const auto step = [this](const auto &read) {
        try {
            read();
        } catch (const std::exception &) { // the box stays as it is
            const runtime::RuntimeError error = desktop::currentError();
            if (error.number() == runtime::OutOfMemory || error.number() == provider::Unspecified)
                m_readFailure = m_readFailure.value_or(error);
        }
    };
    data::Connection connection;
    data::Recordset record;
    step([&] { openDataStore(connection); });
    step([&] {
        record = openRows(connection, u"select * from ["_s + caption + u"] where PersonalInformationId="_s +
                                          QString::number(recordId));
    });
    forEachBox([&](TextBox &box, const QString &name) { step([&] { putText(box, record[name]); }); });
    step([&] { connection.Close(); });
}

void RecordPage::requireWhole() const
{
    if (m_readFailure && !values().isEmpty())
        throw runtime::RuntimeError(*m_readFailure);
}

// Of equal names on a page the last one counts, here and below.
void RecordPage::fillFromRows(const QString &caption)
{
    QHash<QString, int> positions;
    for (int k = 0; k < m_rows.upperBound(); ++k) {
        if (m_rows[k].RowTabNam == caption)
            positions.insert(m_rows[k].RowFieldName, k);
    }
    forEachBox([&](TextBox &box, const QString &name) {
        if (const auto found = positions.constFind(name); found != positions.cend())
            box.setText(m_rows[*found].RowValue);
    });
}

void RecordPage::keepTexts(const QString &caption)
{
    QHash<QString, QString> texts;
    forEachBox([&texts](const TextBox &box, const QString &name) { texts.insert(name, box.text()); });
    for (int k = 0; k < m_rows.upperBound(); ++k) {
        FieldRow &row = m_rows[k + 1];
        if (const auto found = texts.constFind(row.RowFieldName); row.RowTabNam == caption && found != texts.cend())
            row.RowValue = *found;
    }
}

void RecordPage::focusFirstBox() const
{
    if (Text1.Count() > 1)
        Text1(1)->setFocus();
}

QList<BoxValue> RecordPage::values() const
{
    QList<BoxValue> values;
    forEachBox([&values](const TextBox &box, const QString &name) { values << BoxValue{name, box.text()}; });
    return values;
}
