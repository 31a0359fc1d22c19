// The picture with the product's name and version that stands while the program starts. A key or a click closes it.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmSplash : public desktop::Form
{
    Q_OBJECT
public:
    frmSplash();

    desktop::Frame *Frame1;
    desktop::Label *imgLogo;
    desktop::Label *lblProductName;
    desktop::Label *lblVersion;
    desktop::Label *lblPlatform;
    desktop::Label *lblWarning;

protected:
    void Form_Load() override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpContent();
};
