// The search for attachments. By content it copies every attachment that passes the filters out of the store and looks
// through it, the window blocked until it has come to its end; a search by summary is composed and shows nothing.
//
// The opener sets MemberId before the first touch that loads the window. Each content search adds its three columns to
// those that are there. No handler catches a failure. The phrase is no part of a content search's statement; a file
// type with an apostrophe or a version that is no number breaks it.
#pragma once

#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/ListView.h"

#include <optional>

class QGridLayout;

class frmFindInfo : public desktop::Form
{
    Q_OBJECT
public:
    frmFindInfo();

    // Whom "Search Current Member" means; empty: there is no current member.
    QString MemberId;

    desktop::Frame *Frame1;
    desktop::TextBox *txtSearchString;
    desktop::ControlArray<desktop::OptionButton> optSearchSummary;     // 0 by summary, 1 by content
    desktop::ControlArray<desktop::OptionButton> optSearchExactPhrase; // 0 exact, 1 contains
    desktop::ControlArray<desktop::OptionButton> optSearchClient; // 0 all members, 1 the current one, 2 one by name
    desktop::ComboBox *lstSearchClient;
    desktop::ComboBox *lstSearchFileType;
    desktop::ControlArray<desktop::OptionButton> optSearchVersion; // 0 all versions, 1 one
    desktop::TextBox *txtSpecifyVersion;
    desktop::ListBox *lstSearchCategory; // stays empty and has no effect
    desktop::CommandButton *cmdSearch;
    desktop::CommandButton *cmdCancel;
    desktop::ListView *lstViewResults;

    void optSearchClient_Click(int Index);
    void optSearchVersion_Click(int Index);
    void optSearchSummary_Click(int Index);
    void cmdSearch_Click();
    void cmdCancel_Click();
    void lstViewResults_DblClick();
    void lstViewResults_KeyUp(int keyCode);

    // The statement of a search. Unset when a member is to be specified and none is selected; a message has told the
    // user.
    std::optional<QString> summaryStatement(const QString &phrase) const;
    std::optional<QString> contentStatement() const;

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using IndexHandler = void (frmFindInfo::*)(int);

    void setUpContent();
    void setUpHandlers();
    void setUpSearchKind(QGridLayout &parameters);
    void setUpMember(QGridLayout &parameters);
    void setUpFile(QGridLayout &parameters);
    void onClick(const desktop::ControlArray<desktop::OptionButton> &options, IndexHandler handler);
    void listMembers();
    void listFileTypes();
    std::optional<QStringList> conditions() const;
    void searchContent(const QString &phrase);

    QStringList m_memberIds; // by the items of lstSearchClient
};
