#include "shortcuts/startertext.h"

namespace quib {

QByteArray starterShortcuts()
{
    return QByteArrayLiteral(R"({
  "help": "One group per box on the Shortcuts tab. Each button has a name, an icon (an SF Symbol name) and a url. Save, then reopen the notch to see changes. Colours: purple, gold or a hex like #22c55e.",
  "groups": [
    {
      "title": "Work",
      "color": "purple",
      "buttons": [
        { "name": "Inbox", "icon": "envelope.fill", "url": "https://mail.google.com/" },
        { "name": "Calendar", "icon": "calendar", "url": "https://calendar.google.com/" },
        { "name": "Files", "icon": "folder.fill", "url": "https://drive.google.com/" },
        { "name": "Canva", "icon": "paintpalette.fill", "url": "https://www.canva.com/" }
      ]
    },
    {
      "title": "Make money",
      "color": "gold",
      "buttons": [
        { "name": "Find leads", "icon": "map.fill", "url": "https://www.google.com/maps" },
        { "name": "Email outreach", "icon": "paperplane.fill", "url": "https://mail.google.com/mail/?view=cm&fs=1" },
        { "name": "LinkedIn outreach", "icon": "person.2.fill", "url": "https://www.linkedin.com/feed/" },
        { "name": "Book a call", "icon": "phone.fill", "url": "https://calendar.google.com/calendar/u/0/r/eventedit" }
      ]
    }
  ]
}
)");
}

} // namespace quib
