// Writes down what a person does as lines of the script language, so that a session can be played again.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace pelorium {

struct UserEvent;
class Window;

// An event's line follows the answers that its file dialogs got and the blocks of the modal windows it
// opened, because a player must have those at hand when the event asks for them. Each line is flushed as it
// is written: a journal is read when something went wrong.
class Journal {
 public:
  Journal() = default;  // writes nothing
  explicit Journal(const std::filesystem::path& file);
  // The journal that the environment asks for with PELORIUM_JOURNAL=FILE. A file that cannot be written is
  // told on standard error.
  static Journal FromEnvironment();

  // Around each delivery; deliveries nest while a modal window is open.
  void BeginDelivery();
  void NoteEvent(const UserEvent& event);
  void EndDelivery();

  // An empty name is a cancelled dialog.
  void NoteAnswer(const std::string& fileName);
  void BeginModal(const Window& window);
  void EndModal();

 private:
  struct Delivery {
    std::vector<std::string> linesBefore;
    std::string line;
  };
  void Put(const std::string& line);

  std::ofstream file_;
  std::vector<Delivery> open_;  // the deliveries that run, the outermost first
};

}  // namespace pelorium
