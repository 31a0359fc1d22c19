// The designer: an administrator draws pages of labelled boxes on it, which the record window shows and from which the
// tables of the data store are made.
//
// What is drawn lives in memory until the layout is saved; closing the window drops it without a question. Loading, the
// grid, the pages and the width end silently at the first failure. On a data file without fields of the designer's,
// these end the program: moving the pointer over the canvas before a grid size is selected (error 13); and, with error
// 9, changing the page, saving several pages, whose stored rows are deleted by then, and generating a table that
// exists.
#pragma once

#include "dynamicforms/DesignSurface.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/Toolbar.h"

#include <exception>

class DatabaseGenerator : public desktop::Form
{
    Q_OBJECT
public:
    DatabaseGenerator();

    desktop::Toolbar *Toolbar1;
    desktop::ImageList *ImageList1;
    desktop::Frame *FrmDisplayOptions;
    desktop::CheckBox *chkGrid;
    desktop::ListBox *txtGridSize;
    desktop::CheckBox *chkSnapToGrid; // nothing reads it: no control is ever snapped
    desktop::Frame *Frame1;
    desktop::TextBox *txtTableName;
    desktop::TextBox *txtTableDescription;
    desktop::CommandButton *cmdTableAdd;
    desktop::CommandButton *cmdTabeClear;
    desktop::Frame *Frame2;
    desktop::TextBox *txtFieldName;
    desktop::TextBox *txtFieldDescription;
    desktop::ListBox *List1; // stays empty: every field is text
    desktop::TextBox *txtWidth;
    desktop::CommandButton *cmdFieldAdd;
    desktop::CommandButton *cmdFieldClear;
    desktop::TabStrip *TabStrip1;
    desktop::PictureBox *Picture1;
    desktop::CommandButton *cmdGenerateDatebase;
    desktop::CommandButton *cmdSave;
    desktop::CommandButton *cmdExit;

    // Replaces the stored pages by those of the window. The fields of the selected page are written as they lie on the
    // canvas, without their order and with their labels' tool tips as descriptions; those of the others as the rows
    // have them. A load that failed while it read the stored form raises its error here instead, and nothing is
    // written.
    void SaveLayout();
    void ShowTabFields();
    void DrawGrid();
    void CreateAccessTable();
    void Cdcd(const QString &TableName);

    void cmdTableAdd_Click();
    void cmdTabeClear_Click();
    void cmdFieldAdd_Click();
    void cmdFieldClear_Click();
    void cmdGenerateDatebase_Click();
    void cmdSave_Click();
    void cmdExit_Click();
    void Toolbar1_ButtonClick(QAction *button);
    void TabStrip1_BeforeClick();
    void TabStrip1_Click();
    void Picture1_Paint();
    void Picture1_MouseMove(float x);
    void chkGrid_Click();
    void txtGridSize_Click();
    void txtWidth_Change();

protected:
    void Form_Load() override;

private:
    void setUpToolbar();
    void setUpDisplayOptions();
    void setUpTableInformation();
    void setUpColumnInformation();
    void setUpCanvas();
    void setUpLayout();
    void setUpHandlers();
    void loadForm();
    void readForm();
    void saveStoredRows(class LayoutWriter &layout, const QString &caption);
    void saveCanvas(LayoutWriter &layout);
    // Twips. Error 13 while no size is selected.
    qint16 gridStep() const;

    FieldRows m_rows;
    std::exception_ptr m_readFailure; // of the load; unset when the stored form was read whole
    std::optional<DesignSurface> m_surface;
};
