// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's default web browser, asked before a page is opened, so that
// "no browser" and "a browser that fails" are told apart.
#pragma once

#include <string>

namespace ch {

// The program that opens `url` on this desktop, or an empty text when there
// is none. On Linux and other free desktops: the first program of $BROWSER
// that is found on the PATH, else the handler that xdg-mime names for the
// address's scheme. Elsewhere the system's own handler always answers.
std::string DefaultBrowser(const std::string& url);

}  // namespace ch
