// A stand-in for the game. It notes how it was started and ends after a while.
//
//   VANTREL_GAME_NOTE     file that the note is added to; "game.log" in the working folder without it
//   VANTREL_GAME_SECONDS  how long it runs; 3 without it

#include <sys/resource.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

int main(int count, char** arguments) {
  const char* const note = std::getenv("VANTREL_GAME_NOTE");
  const char* const seconds = std::getenv("VANTREL_GAME_SECONDS");
  {
    std::ofstream file(note != nullptr ? note : "game.log", std::ios::app);
    file << "started";
    for (int number = 1; number < count; ++number) {
      file << " [" << arguments[number] << ']';
    }
    file << " in " << std::filesystem::current_path().string() << " nice " << getpriority(PRIO_PROCESS, 0) << '\n';
  }
  std::this_thread::sleep_for(std::chrono::seconds(seconds != nullptr ? std::atoi(seconds) : 3));
}
