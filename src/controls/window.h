// A window: controls by name, a caption, whether it shows, and how its controls are laid out.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/layout.h"

namespace pelorium {

class Control;
class MenuItem;

// A face that shows windows learns of every change through this.
class ControlListener {
 public:
  virtual ~ControlListener() = default;
  virtual void ControlChanged(Control& control) = 0;
  virtual void WindowChanged(Window& window) = 0;
};

// What all windows of one program share. Nobody listens in a program without a screen.
struct ControlHost {
  ControlListener* listener = nullptr;
};

// Where a face shows a window.
enum class WindowRole {
  Frame,    // around all others, with the menu bar
  Splash,   // before the frame
  Page,     // what is worked on or read at length, in the middle
  Options,  // beside the page, always at hand
  Tool,     // a panel beside the page
};

// All windows live as long as the program; they are shown and hidden.
class Window {
 public:
  Window(ControlHost& host, std::string name, std::string caption);
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  ControlHost& host() const { return host_; }
  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  bool visible() const { return visible_; }
  double left() const { return left_; }
  double top() const { return top_; }

  void SetCaption(std::string caption);
  // Lists of files show what is there now.
  virtual void Show();
  void Hide();
  // A person closes the window.
  virtual void Close() { Hide(); }
  void ReloadFileLists();
  // In twips of the frame, 15 to a pixel.
  void MoveTo(double left, double top);

  // Counts the calls of Show, so that a face brings a window to the front that shows already.
  int shows() const { return shows_; }

  // The control of that name, spelt exactly; nullptr if there is none.
  Control* Find(std::string_view name) const;
  // In the order of their declaration.
  const std::vector<Control*>& controls() const { return controls_; }
  const LayoutItem& layout() const { return layout_; }

  // A name that a control of the window has already raises InvalidValue.
  void Adopt(Control& control);

  WindowRole role() const { return role_; }
  // The control that a person's closing of the window presses, if there is one.
  const Control* closingControl() const { return closingControl_; }
  // The menu in which a face lists the open windows, if there is one.
  const MenuItem* windowsMenu() const { return windowsMenu_; }

 protected:
  void SetLayout(LayoutItem layout) { layout_ = std::move(layout); }
  void SetRole(WindowRole role) { role_ = role; }
  void SetClosingControl(const Control* control) { closingControl_ = control; }
  void SetWindowsMenu(const MenuItem* menu) { windowsMenu_ = menu; }

 private:
  void NotifyChanged();

  ControlHost& host_;
  WindowRole role_ = WindowRole::Tool;
  const Control* closingControl_ = nullptr;
  const MenuItem* windowsMenu_ = nullptr;
  std::string name_, caption_;
  bool visible_ = false;
  int shows_ = 0;
  double left_ = 0, top_ = 0;
  std::vector<Control*> controls_;
  std::unordered_map<std::string_view, Control*> byName_;
  LayoutItem layout_;
};

}  // namespace pelorium
