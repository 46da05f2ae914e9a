// Runs composeMail() for mail_message_test.py: mails on standard input, messages on standard output. Each field and
// each message is a line with its size in bytes, followed by the bytes. Size -1 means that there is no message.

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
