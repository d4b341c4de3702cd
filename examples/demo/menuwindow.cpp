#include "menuwindow.h"

#include "catalogueword.h"

#include <qorgenlib/host/qt/calendarwidgetadapter.h>
#include <qorgenlib/host/qt/mainwindowadapter.h>

#include <QCalendarWidget>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

MenuWindow::MenuWindow(clsqorGenLib &lib, QWidget *parent)
    : QMainWindow(parent)
    , m_lib(lib)
{
    setObjectName(QStringLiteral("frmMenu"));
    auto *desk = new QWidget(this);
    setCentralWidget(desk);
    m_frame = new QGroupBox(desk);
    m_frame->setObjectName(QStringLiteral("FrameMenu"));
    m_frame->resize(330, 160);
    auto *buttons = new QVBoxLayout(m_frame);
    m_invoice = new QPushButton(m_frame);
    m_invoice->setObjectName(QStringLiteral("cmdFactuur"));
    m_close = new QPushButton(m_frame);
    m_close->setObjectName(QStringLiteral("cmdAfsluiten"));
    buttons->addWidget(m_invoice);
    buttons->addWidget(m_close);
    m_calendar = new QCalendarWidget(desk);
    m_calendar->setObjectName(QStringLiteral("MonthView"));
    m_calendar->resize(160, 152);
    QFont small = m_calendar->font();
    small.setPixelSize(9);
    m_calendar->setFont(small);
    m_holidays = new qor::CalendarWidgetAdapter(m_calendar, this);
    m_holidays->setCountry(QStringLiteral("BE"));
    m_adapter = new qor::MainWindowAdapter(this, this);
    // The design settings the house layout asks for.
    m_adapter->setMaxButton(false);
    m_adapter->setProperty("Moveable", false);
    m_adapter->setProperty("StartUpPosition", 2);
    connect(m_invoice, &QPushButton::clicked, this, &MenuWindow::invoiceRequested);
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);
    retranslate();
}

void MenuWindow::dress()
{
    m_lib.SetDeskTop(m_adapter);
}

void MenuWindow::retranslate()
{
    setWindowTitle(QStringLiteral("qorGenLib Demo"));
    m_invoice->setText(catalogueWord(m_lib, 9574));
    m_close->setText(catalogueWord(m_lib, 9515));
}
