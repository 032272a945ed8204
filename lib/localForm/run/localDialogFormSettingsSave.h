// Stands where a form's settings will be saved and read one day. Nothing is.
#pragma once

#include <QDialog>

class localDialogFormSettingsSave : public QDialog {
    Q_OBJECT

public:
    explicit localDialogFormSettingsSave(QWidget* parent = nullptr);
};
