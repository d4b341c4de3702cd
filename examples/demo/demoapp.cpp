#include "demoapp.h"

#include "invoiceform.h"
#include "menuwindow.h"

DemoApp::DemoApp()
    : m_settings(m_lib)
{
    // The two Belgian VAT rates in use for these articles, and two decimals.
    m_lib.setProperty("BtwTar1", 2100);
    m_lib.setProperty("BtwTar2", 600);
    m_lib.setProperty("NbrDec", 2);
    m_application.setProperty("ProductName", QStringLiteral("qorGenLib Demo"));
    m_application.setProperty("EXEName", QStringLiteral("qorgenlib-demo"));
    m_application.setProperty("Major", QOR_DEMO_MAJOR);
    m_application.setProperty("Minor", QOR_DEMO_MINOR);
    m_application.setProperty("Revision", QOR_DEMO_REVISION);
}

DemoApp::~DemoApp() = default;

bool DemoApp::start(const QString &programFolder)
{
    m_application.setProperty("Path", programFolder);
    const int offset = m_settings.value(QStringLiteral("Taal")).toInt();
    const bool known = offset >= 0 && offset <= 50000 && offset % 10000 == 0;
    m_lib.setProperty("Offset", known ? offset : 0);
    if (!m_lib.StartUp(&m_application))
        return false;
    m_menu = std::make_unique<MenuWindow>(m_lib);
    m_invoice = std::make_unique<InvoiceForm>(m_lib, m_settings);
    QObject::connect(m_menu.get(), &MenuWindow::invoiceRequested, m_invoice.get(), [this] {
        m_invoice->show();
        m_invoice->raise();
    });
    QObject::connect(
        m_invoice.get(), &InvoiceForm::languageChanged, m_menu.get(), &MenuWindow::retranslate);
    return true;
}

void DemoApp::show()
{
    m_menu->dress();
    m_menu->show();
    m_invoice->show();
}
