"""Local mail server for the tests. Usage: smtp_server.py MODE

Prints one JSON object a line: its port, then each mail. MODE is accept, reject (every recipient is refused) or silent:
then it never answers, and prints "connected" for each client instead. Runs until its standard input is closed."""

import asyncio
import email
import email.header
import email.utils
import json
import sys

from aiosmtpd.smtp import SMTP

mode = sys.argv[1]


def report(**values):
    print(json.dumps(values), flush=True)


class Mails:
    async def handle_RCPT(self, server, session, envelope, address, options):
        if mode == "reject":
            return "550 5.1.1 no such user here"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        message = email.message_from_bytes(envelope.original_content)
        report(to=envelope.rcpt_tos,
               header_to=[a for _, a in email.utils.getaddresses(message.get_all("To", []) + message.get_all("Cc", [])
                                                                 + message.get_all("Bcc", []))],
               sender=email.utils.parseaddr(message["From"])[1],
               subject=str(email.header.make_header(email.header.decode_header(message["Subject"]))),
               type=message.get_content_type(),
               html=message.get_payload(decode=True).decode("utf-8"))
        return "250 OK"


async def never_answer(reader, writer):
    report(connected=True)
    await reader.read()


async def serve():
    loop = asyncio.get_running_loop()
    if mode == "silent":
        server = await asyncio.start_server(never_answer, "127.0.0.1", 0)
    else:
        server = await loop.create_server(lambda: SMTP(Mails(), loop=loop), "127.0.0.1", 0)
    report(port=server.sockets[0].getsockname()[1])
    # The test closes the input when it ends.
    await loop.run_in_executor(None, sys.stdin.read)


asyncio.run(serve())
