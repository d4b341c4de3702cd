#pragma once

#include "demosettings.h"

#include <qorgenlib/host/application.h>
#include <qorgenlib/lib/clsqorgenlib.h>

#include <memory>

class InvoiceForm;
class MenuWindow;

// The demo as one object: the library object, the application object the
// library knows it by, the settings, the menu and the invoice window.
class DemoApp
{
public:
    DemoApp();
    ~DemoApp();

    // Hands the application to the library; false when another copy runs (the
    // library has told the user) and the program must end.
    bool start(const QString &programFolder);
    // Shows the menu, dressed by the library, and the invoice window.
    void show();

    clsqorGenLib &library() { return m_lib; }
    MenuWindow *menu() const { return m_menu.get(); }
    InvoiceForm *invoice() const { return m_invoice.get(); }

private:
    clsqorGenLib m_lib;
    qor::Application m_application;
    DemoSettings m_settings;
    std::unique_ptr<MenuWindow> m_menu;
    std::unique_ptr<InvoiceForm> m_invoice;
};
