"""Parses the output of composeMail() with Python's email package and compares it with the input."""

import email
import email.header
import email.policy
import email.utils
import random
import re
import subprocess
import sys
import unicodedata

tool = sys.argv[1]
failures = []
TO = "support@tqstudio.example"


def field(value):
    data = value if isinstance(value, bytes) else value.encode("utf-8", "surrogatepass")
    return b"%d\n" % len(data) + data


def compose(cases):
    """The messages of the cases (to, subject, html); None for each that was refused."""
    given = b"".join(field(part) for case in cases for part in case)
    out = subprocess.run([tool], input=given, stdout=subprocess.PIPE, check=True).stdout
    messages, at = [], 0
    for _ in cases:
        end = out.index(b"\n", at)
        size = int(out[at:end])
        at = end + 1 + max(size, 0)
        messages.append(out[end + 1:at] if size >= 0 else None)
    if at != len(out):
        failures.append("output after the last message")
    return messages


def valid(value):
    """The text with U+FFFD for each invalid byte. Python's own replacement groups bytes."""
    if isinstance(value, str):
        value = value.encode("utf-8", "surrogatepass")
    text = ""
    while value:
        try:
            return text + value.decode("utf-8")
        except UnicodeDecodeError as error:
            text += value[:error.start].decode("utf-8") + "\ufffd"
            value = value[error.start + 1:]
    return text


def as_header(value):
    return "".join(" " if unicodedata.category(c) in ("Cc", "Zl", "Zp") else c for c in valid(value))


def check(case, data):
    what = repr(case)[:300]

    def expect(condition, why):
        if not condition:
            failures.append(f"{why}: {what}\n{data[:600]!r}")

    expect(data is not None, "no message")
    if data is None:
        return
    expect(data.isascii() and b"\r" not in data and b"\0" not in data, "not plain ASCII lines")
    head, body = data.split(b"\n\n", 1)
    expect(all(len(line) <= 76 for line in body.split(b"\n")), "a line of the body is too long")
    expect(all(len(line) <= 76 for line in head.split(b"\n") if b"@" not in line), "a line of the head is too long")
    words = re.findall(rb"=\?UTF-8\?B\?[^?]*\?=", head)
    expect(all(len(word) <= 75 for word in words), "an encoded word is too long")
    for word in words:
        try:
            email.header.decode_header(word.decode())[0][0].decode("utf-8")
        except UnicodeDecodeError:
            expect(False, "a code point is split")

    # The compat32 policy returns headers unparsed. The default policy parses them by newer RFCs.
    message = email.message_from_bytes(data)
    expect(message.defects == [], f"defects {message.defects}")
    expect(sorted(message.keys()) == sorted(["To", "Subject", "MIME-Version", "Content-Type", "Content-Transfer-Encoding"]), f"headers {message.keys()}")
    recipients = email.utils.getaddresses([value for name, value in message.items()
                                           if name.lower() in ("to", "cc", "bcc", "resent-to", "resent-bcc")])
    expect(recipients == [("", case[0])], f"recipients {recipients}")
    subject = str(email.header.make_header(email.header.decode_header(message["Subject"])))
    expect(subject == as_header(case[1]), f"subject {subject!r}")
    expect(message.get_content_type() == "text/html" and message.get_content_charset() == "utf-8", "type")
    expect(message.get_payload(decode=True) == valid(case[2]).encode("utf-8"), "body")

    modern = email.message_from_bytes(data, policy=email.policy.default)
    expect([a.addr_spec for a in modern["To"].addresses] == [case[0]], "recipient by the default policy")
    if as_header(case[1]).strip() == as_header(case[1]) and "=?" not in as_header(case[1]):
        expect(modern["Subject"] == as_header(case[1]), f"subject by the default policy {modern['Subject']!r}")


def mail(subject="Contact: Hazel Grid 2.3.1(57)", html="<p>Hello</p>", to=TO):
    return (to, subject, html)


# Named cases.
cases = [
    mail(),
    mail("", ""),
    mail(" "), mail("a "), mail(" a"), mail("a  b"),
    mail("联系：青岚 2.3.1(57)", "<p>你好，世界</p>"),
    mail("تواصل: شبكة ٢٫٣(٥٧)", "<p dir=rtl>مرحبا</p>"),
    mail("🌲" * 200, "👩‍👩‍👧‍👦" * 300),
    mail("e" + "\u0301" * 400),
    mail("x" * 5000, "y" * 5000),
    mail("word " * 3000),
    mail("a\0b", "\0" * 100),
    mail("a\r\nBcc: eve@evil.example\r\n\r\nbody"),
    mail("a\nBcc: eve@evil.example"), mail("a\rBcc: eve@evil.example"), mail("a\u2028Bcc: eve@evil.example"),
    mail("a\u0085Bcc: eve@evil.example"), mail("a\vb\fc\u2029d\x7fe\x1bf"),
    mail("=?UTF-8?Q?Bcc:_eve@evil.example?="), mail("=?UTF-8?B?" + "A" * 100), mail("a =?b"),
    mail("x", "line\nline\r\nline\r.\n..\n\nFrom here"),
    mail("x", "Bcc: eve@evil.example\r\n.\r\nMAIL FROM:<eve@evil.example>"),
    mail(b"\xff\xfe\xc0\x80\xed\xa0\x80\xf4\x90\x80\x80\xe4\xb8", b"\x80\xc3(\xf0\x9f\x8c" + "中".encode()[:2]),
    mail("\ud800 lone \udc00", "\udfff"),
    mail("x", "中" * 400000),
]
messages = compose(cases)
for case, message in zip(cases, messages):
    check(case, message)
if messages[0] is None or b"Subject: Contact: Hazel Grid 2.3.1(57)\n" not in messages[0]:
    failures.append("an ASCII subject was encoded")

fitting, longer = compose([mail("s" * (76 - len("Subject: "))), mail("s" * (77 - len("Subject: ")))])
if b"Subject: " + b"s" * 67 + b"\n" not in fitting or b"ssss" in longer:
    failures.append("subjects are not encoded exactly from the first one that exceeds a line")

# Addresses.
good = ["a@b", "a.b+c_d-e'f@x-1.example", "A" * 64 + "@b", "a@" + "b" * 63 + ".c", "1@2"]
bad = ["", "@", "a", "a@", "@b", "a@b@c", "a@b,c@d", "a@b c@d", "a b@c", "<a@b>", "Eve <a@b>", '"a"@b', "a@b\n", "a@b\0",
       "\na@b", "a@b\nBcc: c@d", "a@b\r\nBcc: c@d", "a@[127.0.0.1]", "a@b.", "a@.b", "a@b..c", ".a@b", "a.@b", "a..b@c",
       "-oQ@b", "a@-b", "a@b-", "a(comment)@b", "a@b;c@d", "a:b@c;", "|cat@b", "a!b@c", "a%b@c", "a/b@c", "ä@b", "a@ä",
       "a@b\u2028", b"a@b\xff", "A" * 65 + "@b", "a@" + "b" * 64, "a@" + ".".join(["b" * 60] * 5), "a`b@c", "$a@b"]
for address, message in zip(good, compose([mail(to=a) for a in good])):
    check(mail(to=address), message)
for sent, message in zip(bad, compose([mail(to=a) for a in bad])):
    if message is not None:
        failures.append(f"recipient {sent!r} was accepted")

# Random sequences of pieces that are special in mails.
dice = random.Random(20260816)
pieces = ["a", " ", "\n", "\r\n", "\0", "Bcc: eve@evil.example", ":", "=?", "?=", "=?UTF-8?B?QQ==?=", "é", "中文", "العربية",
          "🌲", "\u200f", "\u2028", "\u0085", "\ufffd", "\ufeff", ",", "<>", '"', "\\", "x" * 60, ".", "\r\n\r\n"]


def random_text(max_size):
    if dice.random() < 0.2:
        return bytes(dice.randrange(256) for _ in range(dice.randrange(max_size)))
    if dice.random() < 0.3:
        return "".join(chr(dice.choice((dice.randrange(0x80), dice.randrange(0x3000), dice.randrange(0x110000))))
                       for _ in range(dice.randrange(max_size)))
    return "".join(dice.choice(pieces) for _ in range(dice.randrange(max_size)))


cases = [mail(random_text(60), random_text(200)) for _ in range(4000)]
for case, message in zip(cases, compose(cases)):
    check(case, message)

print("\n".join(failures[:10]) or f"{len(cases) + len(bad) + len(good) + len(messages)} mails, each equal to its input")
sys.exit(bool(failures))
