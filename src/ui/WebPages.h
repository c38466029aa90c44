#pragma once

class QUrl;

/// Opens a page in the default browser; an address that is not one of the web is logged and left.
void openWebPage(const QUrl &url);
