#include "search/frmFindInfo.h"

#include "library/AttachmentRows.h"
#include "library/ClsBinaryFunctions.h"
#include "parts/ListedColumns.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"
#include "shell/store/DataStore.h"

#include <QGridLayout>
#include <QHeaderView>

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using desktop::Frame;
using desktop::OptionButton;
using runtime::Value;

namespace {

constexpr std::array hitColumns{
    ListedColumn{.header = u"File Id", .column = u"DocumentId"},
    ListedColumn{.header = u"File Name", .column = u"DocumentName"},
    ListedColumn{.header = u"File Version", .column = u"Version"},
};

constexpr double windowWidth = 5775; // twips
constexpr double windowHeight = 9360;
constexpr int gap = 6; // logical pixels
constexpr int columnWidth = 115;

// The window is narrow for what it holds: its layouts take little room beside their contents.
template <class Layout> Layout *compact(QWidget *parent)
{
    auto *layout = new Layout(parent);
    layout->setContentsMargins(gap, gap / 2, gap, gap);
    layout->setSpacing(gap / 2);
    return layout;
}

OptionButton *addOption(desktop::ControlArray<OptionButton> &options, int index, QWidget *frame, const QString &caption)
{
    OptionButton *option = options.add(index, frame);
    option->setText(caption);
    return option;
}

} // namespace

frmFindInfo::frmFindInfo()
    : Form(Place::InFrame, u"frmFindInfo"), optSearchSummary(u"optSearchSummary"_s),
      optSearchExactPhrase(u"optSearchExactPhrase"_s), optSearchClient(u"optSearchClient"_s),
      optSearchVersion(u"optSearchVersion"_s)
{
    setDesignCaption(u"Tolmark Search"_s);
    setUpContent();
    setUpHandlers();
    optSearchSummary(1)->setValue(true);
    optSearchClient(1)->setValue(true);
    optSearchVersion(0)->setValue(true);
    keepSize(windowWidth, windowHeight);
}

void frmFindInfo::setUpContent()
{
    Frame1 = new Frame(this, u"Frame1", u"Search Parameters"_s);
    auto *parameters = compact<QGridLayout>(Frame1);
    auto *frmSearchString = new Frame(Frame1, u"frmSearchString", u"Search Phrase"_s);
    auto *lblSearchString = new desktop::Label(frmSearchString, u"lblSearchString", u"Search Phrase"_s);
    txtSearchString = new desktop::TextBox(frmSearchString, u"txtSearchString");
    lblSearchString->setBuddy(txtSearchString);
    txtSearchString->setAccessibleName(lblSearchString->text());
    auto *phrase = compact<QHBoxLayout>(frmSearchString);
    phrase->setSpacing(gap);
    phrase->addWidget(lblSearchString);
    phrase->addWidget(txtSearchString);
    parameters->addWidget(frmSearchString, 0, 0, 1, 2);
    parameters->setColumnStretch(0, 1);
    parameters->setColumnStretch(1, 1);
    setUpSearchKind(*parameters);
    setUpMember(*parameters);
    setUpFile(*parameters);

    cmdSearch = new CommandButton(this, u"cmdSearch", u"Find"_s);
    cmdCancel = new CommandButton(this, u"cmdCancel", u"Cancel"_s);
    lstViewResults = new desktop::ListView(this, u"lstViewResults");
    lstViewResults->setAccessibleName(u"Search results"_s);
    lstViewResults->header()->setDefaultSectionSize(columnWidth);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSearch);
    buttons->addWidget(cmdCancel);
    auto *whole = compact<QVBoxLayout>(this);
    whole->addWidget(Frame1);
    whole->addLayout(buttons);
    whole->addWidget(lstViewResults, 1);
}

void frmFindInfo::setUpSearchKind(QGridLayout &parameters)
{
    auto *frmSearchContent = new Frame(Frame1, u"frmSearchContent", u"Search Content"_s);
    auto *content = compact<QVBoxLayout>(frmSearchContent);
    content->addWidget(addOption(optSearchSummary, 0, frmSearchContent, u"Summary"_s));
    content->addWidget(addOption(optSearchSummary, 1, frmSearchContent, u"Content"_s));
    parameters.addWidget(frmSearchContent, 1, 0);

    auto *frmSearchMatch = new Frame(Frame1, u"frmSearchMatch", u"Search Match Type"_s);
    auto *match = compact<QVBoxLayout>(frmSearchMatch);
    match->addWidget(addOption(optSearchExactPhrase, 0, frmSearchMatch, u"Exact Phrase"_s));
    match->addWidget(addOption(optSearchExactPhrase, 1, frmSearchMatch, u"Contains"_s));
    parameters.addWidget(frmSearchMatch, 1, 1);
}

void frmFindInfo::setUpMember(QGridLayout &parameters)
{
    auto *frmSearchClient = new Frame(Frame1, u"frmSearchClient", u"Search Client"_s);
    auto *member = compact<QGridLayout>(frmSearchClient);
    member->addWidget(addOption(optSearchClient, 0, frmSearchClient, u"Search All Members"_s), 0, 0, 1, 2);
    member->addWidget(addOption(optSearchClient, 1, frmSearchClient, u"Search Current Member"_s), 1, 0, 1, 2);
    member->addWidget(addOption(optSearchClient, 2, frmSearchClient, u"Specify Member"_s), 2, 0);
    lstSearchClient = new desktop::ComboBox(frmSearchClient, u"lstSearchClient");
    lstSearchClient->setAccessibleName(u"Member"_s);
    lstSearchClient->setEnabled(false);
    member->addWidget(lstSearchClient, 2, 1);
    member->setColumnStretch(1, 1);
    parameters.addWidget(frmSearchClient, 2, 0, 1, 2);
}

void frmFindInfo::setUpFile(QGridLayout &parameters)
{
    auto *frmSearchFileTYpe = new Frame(Frame1, u"frmSearchFileTYpe", u"Search File Type"_s);
    lstSearchFileType = new desktop::ComboBox(frmSearchFileTYpe, u"lstSearchFileType");
    frmSearchFileTYpe->setBuddy(lstSearchFileType);
    compact<QVBoxLayout>(frmSearchFileTYpe)->addWidget(lstSearchFileType);
    parameters.addWidget(frmSearchFileTYpe, 3, 0);

    auto *frmSearchVersion = new Frame(Frame1, u"frmSearchVersion", u"Search Version"_s);
    auto *version = compact<QVBoxLayout>(frmSearchVersion);
    version->addWidget(addOption(optSearchVersion, 0, frmSearchVersion, u"All Versions"_s));
    version->addWidget(addOption(optSearchVersion, 1, frmSearchVersion, u"Specify Version"_s));
    txtSpecifyVersion = new desktop::TextBox(frmSearchVersion, u"txtSpecifyVersion");
    txtSpecifyVersion->setAccessibleName(u"Version"_s);
    txtSpecifyVersion->setEnabled(false);
    version->addWidget(txtSpecifyVersion);
    parameters.addWidget(frmSearchVersion, 3, 1, 2, 1);

    auto *frmSearchCategory = new Frame(Frame1, u"frmSearchCategory", u"Search Category"_s);
    lstSearchCategory = new desktop::ListBox(frmSearchCategory, u"lstSearchCategory");
    frmSearchCategory->setBuddy(lstSearchCategory);
    lstSearchCategory->setLines(2);
    compact<QVBoxLayout>(frmSearchCategory)->addWidget(lstSearchCategory);
    parameters.addWidget(frmSearchCategory, 4, 0);
}

void frmFindInfo::setUpHandlers()
{
    using desktop::on;
    onClick(optSearchSummary, &frmFindInfo::optSearchSummary_Click);
    onClick(optSearchClient, &frmFindInfo::optSearchClient_Click);
    onClick(optSearchVersion, &frmFindInfo::optSearchVersion_Click);
    on(cmdSearch, &QPushButton::clicked, this, &frmFindInfo::cmdSearch_Click);
    on(cmdCancel, &QPushButton::clicked, this, &frmFindInfo::cmdCancel_Click);
    on(txtSearchString, &QLineEdit::returnPressed, this, &frmFindInfo::cmdSearch_Click);
    on(lstViewResults, &desktop::ListView::DblClick, this, &frmFindInfo::lstViewResults_DblClick);
    on(lstViewResults, &desktop::ListView::KeyUp, this, &frmFindInfo::lstViewResults_KeyUp);
}

void frmFindInfo::onClick(const desktop::ControlArray<OptionButton> &options, IndexHandler handler)
{
    for (int index = 0; index < options.Count(); ++index)
        desktop::on(options(index), &OptionButton::Click, this,
                    [handler, index](frmFindInfo *window) { (window->*handler)(index); });
}

void frmFindInfo::Form_Load()
{
    if (MemberId.isEmpty()) {
        optSearchClient(1)->setEnabled(false);
        optSearchClient(0)->setValue(true);
    }
    listMembers();
    listFileTypes();
}

void frmFindInfo::listMembers()
{
    CLsDataBaseConnection connection;
    data::Recordset members = connection.CreateRecordset(
        u"SELECT [MemberInformation].[FirstName] AS [first], "
        "[MemberInformation].[MiddleName] AS Middle, [MemberInformation].[LastName] AS [last], "
        "[MemberInformation].MemberId AS id FROM [MemberInformation];"_s);
    QStringList names;
    const auto text = [&members](QStringView column) { return runtime::joinedText(members[column].Value()); };
    for (; !members.Eof(); members.MoveNext()) {
        names << text(u"First") + u"  "_s + text(u"middle") + u"  "_s + text(u"Last");
        m_memberIds << text(u"Id");
    }
    lstSearchClient->append(names);
    members.Close();
    connection.DbClose();
}

void frmFindInfo::listFileTypes()
{
    CLsDataBaseConnection connection;
    data::Recordset extensions =
        connection.CreateRecordset(u"SELECT distinct Attachments.AttachmentExtension FROM Attachments;"_s);
    lstSearchFileType->append({u"All"_s});
    lstSearchFileType->setText(u"All"_s);
    for (; !extensions.Eof(); extensions.MoveNext()) {
        if (const Value extension = extensions[u"AttachmentExtension"].Value(); !extension.isNull())
            lstSearchFileType->append({runtime::toText(extension)});
    }
    extensions.Close();
    connection.DbClose();
}

void frmFindInfo::optSearchClient_Click(int Index)
{
    lstSearchClient->setEnabled(Index == 2);
}

void frmFindInfo::optSearchVersion_Click(int Index)
{
    txtSpecifyVersion->setEnabled(Index == 1);
}

// A search by content is always for a text that the file contains, never for an exact phrase.
void frmFindInfo::optSearchSummary_Click(int Index)
{
    optSearchExactPhrase(0)->setEnabled(Index != 1);
    if (Index == 1)
        optSearchExactPhrase(1)->setValue(true);
}

void frmFindInfo::cmdCancel_Click()
{
    Unload();
}

void frmFindInfo::cmdSearch_Click()
{
    const QString phrase = txtSearchString->text();
    if (optSearchSummary(0)->Value())
        summaryStatement(phrase); // only its message is seen: a search by summary is composed and not run
    else if (optSearchSummary(1)->Value())
        searchContent(phrase);
}

std::optional<QStringList> frmFindInfo::conditions() const
{
    QStringList all;
    if (optSearchClient(1)->Value())
        all << u"MemberId = "_s + MemberId;
    if (optSearchClient(2)->Value()) {
        if (lstSearchClient->ListIndex() == -1) {
            desktop::MsgBox(u"Please select a client"_s, desktop::vbCritical, u"Error"_s);
            return std::nullopt;
        }
        all << u"MemberId = "_s + m_memberIds[lstSearchClient->ListIndex()];
    }
    if (lstSearchFileType->Text() != u"All")
        all << u"AttachmentExtension = '"_s + lstSearchFileType->Text() + u"'"_s;
    if (optSearchVersion(1)->Value())
        all << u"AttachmentVersion = "_s + txtSpecifyVersion->text();
    return all;
}

std::optional<QString> frmFindInfo::summaryStatement(const QString &phrase) const
{
    const QString matching =
        optSearchExactPhrase(0)->Value() ? u"= '"_s + phrase + u"'"_s : u"like '%"_s + phrase + u"%'"_s;
    QString statement = u"SELECT * FROM Attachments WHERE AttachmentDescription "_s + matching;
    const std::optional<QStringList> filters = conditions();
    if (!filters)
        return std::nullopt;
    for (const QString &filter : *filters)
        statement += u" AND "_s + filter;
    return statement;
}

std::optional<QString> frmFindInfo::contentStatement() const
{
    const std::optional<QStringList> filters = conditions();
    if (!filters)
        return std::nullopt;
    const QString all = u"SELECT * FROM Attachments"_s;
    return filters->isEmpty() ? all : all + u" WHERE "_s + filters->join(u" AND "_s);
}

void frmFindInfo::searchContent(const QString &phrase)
{
    const auto answer = desktop::MsgBox(u"Warning this operation could take some time to complete.\r\n"
                                        "Do you want to continue"_s,
                                        desktop::vbYesNo, u"Sarnet Content Search Warning"_s);
    if (answer != desktop::vbYes)
        return;
    const std::optional<QString> statement = contentStatement();
    if (!statement)
        return;
    ClsBinaryFunctions scanner;
    data::Recordset hits = scanner.cmdOpendb(phrase, *statement);
    lstViewResults->ListItems.Clear();
    addHeaders(*lstViewResults, hitColumns);
    if (hits.RecordCount() > 0)
        hits.MoveFirst();
    fillList(*lstViewResults, hits, {}, hitColumns);
}

void frmFindInfo::lstViewResults_DblClick()
{
    data::Connection connection;
    openDataStore(connection);
    const desktop::ListItem &hit = *lstViewResults->SelectedItem();
    data::Recordset attachment =
        openRows(connection, u"select * from Attachments where AttachmentsId = "_s + hit.Text());
    viewAttachment(connection, attachment, hit.SubItems(1));
}

void frmFindInfo::keyPressEvent(QKeyEvent *event)
{
    if (desktop::keyCode(*event) == desktop::vbKeyEscape)
        cmdCancel->click();
    else
        Form::keyPressEvent(event);
}

// Enter does for the keyboard what a double click does for the mouse; without a selected hit it does nothing.
void frmFindInfo::lstViewResults_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyReturn && lstViewResults->SelectedItem())
        lstViewResults_DblClick();
}
