#pragma once

#include <functional>
#include <string>

namespace tactora {

// Opens applications, files and addresses the way the Finder would. Main thread only; the
// answers of the open calls come later, on the main thread.
class Opener {
  public:
    virtual ~Opener() = default;

    // Whether an application with this bundle identifier is installed.
    virtual bool hasApplication(const std::string& bundleID) const = 0;
    // Whether a file or folder exists at this path.
    virtual bool hasFile(const std::string& path) const = 0;
    // The name the user knows the application by, or the bundle identifier when the system
    // does not know it.
    virtual std::string applicationName(const std::string& bundleID) const = 0;

    // Launches the application, or brings it to the front when it runs; `done` learns whether
    // that worked.
    virtual void openApplication(const std::string& bundleID, std::function<void(bool)> done) = 0;
    // Opens the file or folder with its default application.
    virtual void openFile(const std::string& path, std::function<void(bool)> done) = 0;
    // Opens the URL with the application that handles its scheme.
    virtual void openAddress(const std::string& url, std::function<void(bool)> done) = 0;
};

}  // namespace tactora
