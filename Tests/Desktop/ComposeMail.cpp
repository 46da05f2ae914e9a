// For mail_message_test.py: reads mails from the standard input and writes each as composeMail() does. A field and a
// message are a line with their size and then their bytes; of what is no message the size is -1.

#include "MailMessage.h"

#include <iostream>

int main()
{
    const auto read = [](std::string &field) {
        std::size_t size = 0;
        if (!(std::cin >> size) || std::cin.get() != '\n')
            return false;
        field.resize(size);
        return static_cast<bool>(std::cin.read(field.data(), static_cast<std::streamsize>(size)));
    };
    std::ios::sync_with_stdio(false);
    TQFoundation::MailMessage mail;
    while (read(mail.to) && read(mail.subject) && read(mail.html)) {
        const auto message = TQFoundation::composeMail(mail);
        if (message)
            std::cout << message->size() << '\n' << *message;
        else
            std::cout << "-1\n";
    }
    return 0;
}
