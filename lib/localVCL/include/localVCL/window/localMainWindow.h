// An ordinary main window that carries one stand-alone form, text or picture, under the program's
// icon.
#pragma once

#include <QMainWindow>

class localMainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit localMainWindow(QWidget* parent = nullptr);

protected:
    // Closes when its content, a localVclWindowContent, allows it.
    void closeEvent(QCloseEvent* event) override;
};
