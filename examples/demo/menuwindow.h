#pragma once

#include <QMainWindow>

class QCalendarWidget;
class QGroupBox;
class QPushButton;
class clsqorGenLib;

namespace qor {
class CalendarWidgetAdapter;
class MainWindowAdapter;
} // namespace qor

// The application's main menu, dressed in the house layout by the library:
// the menu frame with its buttons, the month calendar with the Belgian public
// holidays marked, the coloured shapes and the version label.
class MenuWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MenuWindow(clsqorGenLib &lib, QWidget *parent = nullptr);
    // Lays the window out; call once the application object is known to the library.
    void dress();
    void retranslate();

signals:
    void invoiceRequested();

private:
    clsqorGenLib &m_lib;
    QGroupBox *m_frame;
    QCalendarWidget *m_calendar;
    QPushButton *m_invoice;
    QPushButton *m_close;
    qor::MainWindowAdapter *m_adapter;
    qor::CalendarWidgetAdapter *m_holidays;
};
