#include "desktop/pages/HelpText.h"

namespace vantrel {

// The lines of one paragraph are joined, so that the window breaks it where it likes.
std::string helpText() {
  return "The folder of the game:\n"
         "Vantrel CE must know the folder in which haloce.exe lies. It takes the folder that you chose last, or else "
         "the one that the game's installer left in your Wine prefix (WINEPREFIX, else .wine in your home). If neither "
         "is there, press Locate... and show it haloce.exe.\n"
         "Startup parameters:\n"
         "What is ticked is put behind haloce.exe when the game is launched.\n"
         "-screenshot lets the Print Screen key save a picture of the game.\n"
         "-console opens the game's console to you, with the key left of the 1.\n"
         "-nojoystick keeps the game from looking for joysticks and gamepads.\n"
         "-novideo skips the films at the start.\n"
         "Command line parameters:\n"
         "Choose one, or type any that your game understands.\n"
         "-use11, -use14 and -use20 draw with pixel shaders 1.1, 1.4 or 2.0 only. An older version may help where the "
         "game shows wrong colors or runs slowly.\n"
         "-useff draws without shaders, for very old graphics cards.\n"
         "-connect IP:port joins that server at the start, and -password word tells it the password. You need to type "
         "neither for the current server.\n"
         "Show after query:\n"
         "The page that opens when the current server has answered.\n"
         "Auto refresh:\n"
         "Asks the current server anew every five seconds, for as long as you stay on its pages. The switch is in the "
         "game summary.\n"
         "Auto join:\n"
         "Launch on a server whose last answer was that it is full, and you are asked whether to wait. It is then "
         "asked "
         "anew every five seconds, and the game starts as soon as it has a place for you. Full Servers waits for the "
         "full server on show. Another server, another page or Disable ends the waiting.\n"
         "Announcements:\n"
         "Tells an IRC channel which server you join, and that you are back. Tick the box first, then type the "
         "channel's "
         "name. Your own IRC client, HexChat, must be running: it does the sending.\n"
         "Tools:\n"
         "The Tools page lists the programs in the folder plugins beside this one, as they were when it started.\n"
         "At start:\n"
         "No splash screen opens the window at once. Every setting is kept the moment you change it.\n";
}

}  // namespace vantrel
