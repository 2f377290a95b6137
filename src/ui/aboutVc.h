#pragma once

#include "platform/Control.h"
#include "platform/Outlet.h"
#include "platform/TextField.h"
#include "platform/ViewController.h"

/// The About page: the version, and buttons that open the maker's pages. Main thread.
class aboutVc : public NS::ViewController {
public:
    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;

    void btnfacebook(NS::Control& sender);
    void btntwitter(NS::Control& sender);
    void btnweb(NS::Control& sender);
    /// Opens the application's page in the store; unlike the others it says nothing of success.
    void btnRateusClciked(NS::Control& sender);

    NS::Outlet<NS::TextField> lblAppversion{"lblAppversion"};
};
