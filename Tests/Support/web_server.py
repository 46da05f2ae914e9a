"""Local web server for the tests. Usage: web_server.py FOLDER

Prints two ports, for HTTP and for HTTPS with a self-signed certificate, and runs until its standard input is closed.
Key and certificate are written to FOLDER. Each path is named after the behaviour of its page."""

import html
import http.server
import pathlib
import ssl
import subprocess
import sys
import threading

folder = pathlib.Path(sys.argv[1])
asked = set()

CHOOSER = ("<title>chooser</title><input type={} style='position:fixed;inset:0;width:100%;height:100%'"
           "onclick='setTimeout(() => document.title = `asked`, 500)'>")
PAGES = {
    "/": "<title>Bank of Anywhere</title><h1>Filing</h1><p>A page.",
    "/link": "<title>link</title><a href='/' style='position:fixed;inset:0'>all of the page leads on</a>",
    "/blank-link": "<title>link</title><a href='/' target=_blank style='position:fixed;inset:0'>elsewhere</a>",
    "/keys": "<title>keys</title><script>for (const t of ['keydown','keyup','keypress'])"
             "addEventListener(t, e => { e.preventDefault(); e.stopPropagation(); }, true);</script><input autofocus>",
    "/busy": "<title>busy</title><p>busy<script>setTimeout(() => { for (;;); }, 200)</script>",
    "/busy-at-once": "<script>for (;;);</script>",
    "/loud": "<script>console.log('l'); console.warn('w'); console.error('e'); throw new Error('t');</script>"
             "<script>document.title = 'loud'</script>",
    "/dialogs": "<script>alert('a'); confirm('b'); prompt('c'); document.title = 'went on';</script>",
    "/windows": "<script>open('/'); open('https://tqstudio.example', '_blank', 'popup'); document.title = 'tried';</script>",
    "/programs": "<iframe src='mailto:a@b.example'></iframe><iframe src='tel:1'></iframe>"
                 "<script>location = 'mailto:a@b.example'; document.title = 'tried';</script>",
    "/files": "<script>try { location = 'file:///etc/passwd' } catch (e) {} document.title = 'tried';</script>",
    "/chooser-of-colors": CHOOSER.format("color"),
    "/chooser-of-files": CHOOSER.format("file"),
    "/download": "<title>download</title><iframe src='/attachment'></iframe>",
    "/ask": "<script>navigator.geolocation.getCurrentPosition(() => document.title = 'given',"
            "() => document.title = 'denied');</script>",
    "/keep": "<script>document.title = 'kept:' + document.cookie + (localStorage.k || '');"
             "document.cookie = 'c=1; max-age=9999'; localStorage.k = 1;</script>",
    "/frames": "<title>frames</title><iframe srcdoc='inner'></iframe><iframe src='about:blank'></iframe>"
               "<iframe src='data:text/html,inner'></iframe>",
    "/stay": "<title>stay</title><script>addEventListener('beforeunload', e => { e.preventDefault();"
             "e.returnValue = 'stay'; })</script><p>This page asks whether to leave it.",
    "/scripts": "<script>let n = 0; for (let i = 0; i < 2000; ++i) { const e = document.createElement('p');"
                "e.textContent = i; document.documentElement.append(e); n += e.offsetHeight > 0 && i % 10 === 0; }"
                "document.title = 'scripts';</script>",
}

# Pages that are one link to this server under another host name. The query of such a page is the path of its link.
HREF = "'//localhost:' + location.port + '/' + location.search.substring(1)"
LINK = "<title>link</title><a {} style='position:fixed;inset:0'>elsewhere</a>"
ELSEWHERE = {
    "/elsewhere": LINK.format("target=_blank") + f"<script>document.querySelector('a').href = {HREF}</script>",
    "/elsewhere-in-place": LINK.format("") + f"<script>document.querySelector('a').href = {HREF}</script>",
    "/elsewhere-in-frame": "<iframe style='position:fixed;inset:0;width:100%;height:100%'></iframe><title>link</title>"
                           "<script>document.querySelector('iframe').srcdoc = '<a target=_blank "
                           f"style=position:fixed;inset:0 href=' + {HREF} + '>elsewhere</a>'</script>",
    "/elsewhere-rewriting": LINK.format("target=_blank") + f"<script>document.querySelector('a').href = {HREF};"
                            "HTMLElement.prototype.click = document.createElementNS = () => null; let n = 0;"
                            "setInterval(() => history.pushState(0, '', '/' + ++n % 10), 20);</script>",
}


class Pages(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *_):
        pass

    def answer(self, body, status=200, **headers):
        data = body.encode()
        self.send_response(status)
        for name, value in {"Content-Type": "text/html; charset=utf-8", "Content-Length": len(data), **headers}.items():
            self.send_header(name.replace("_", "-"), str(value))
        self.end_headers()
        self.wfile.write(data)

    def do_GET(self):
        path, _, query = self.path.partition("?")
        if self.path in PAGES:
            self.answer(PAGES[self.path])
        elif path in ELSEWHERE:
            self.answer(ELSEWHERE[path])
        elif path == "/stay-link":
            self.answer(PAGES["/stay"] + f"<a {query} href='/' style='position:fixed;inset:0'>all of the page leads on</a>")
        elif path == "/sandboxed":
            self.answer(LINK.format(f"target=_blank href='//localhost:{self.server.server_port}/'"),
                        Content_Security_Policy="sandbox allow-popups; default-src 'none'; style-src 'unsafe-inline'")
        elif path == "/drawing":
            self.answer("<svg xmlns='http://www.w3.org/2000/svg'><title>link</title>"
                        f"<a target='_blank' href='//localhost:{self.server.server_port}/'>"
                        "<rect width='100%' height='100%'/></a></svg>", Content_Type="image/svg+xml")
        elif path == "/echo":
            self.answer("<title>" + html.escape(self.path) + "</title>")
        elif path == "/echo-links":
            self.answer(f"<title>links</title><a {query} style='position:fixed;inset:0' "
                        "href='/echo?%20%22%23%25%2B%26+&amp;%C3%A9&#233;%E4&lt;\"&#x2028;#f'>odd characters</a>")
        elif path == "/silent-later":
            if path in asked:
                stopped.wait()
            asked.add(path)
            self.answer(ELSEWHERE["/elsewhere-in-place"], Cache_Control="no-store")
        elif self.path == "/silent":
            stopped.wait()
        elif self.path == "/endless":
            self.send_response(200)
            self.send_header("Content-Type", "text/html")
            self.end_headers()
            try:
                self.wfile.write(b"<title>endless</title>" + b"<p>more and more of the page" * 200)
                while not stopped.wait(0.1):
                    self.wfile.write(b"<p>more and more of the page")
            except OSError:
                pass
        elif self.path == "/slow":
            stopped.wait(0.5)
            self.answer("<title>slow</title><p>At last.")
        elif self.path == "/empty-error":
            self.answer("", 500)
        elif self.path == "/not-found":
            self.answer("<title>not found</title><h1>Nothing here</h1>", 404)
        elif self.path == "/redirect":
            self.answer("", 302, Location="/")
        elif self.path == "/redirect-elsewhere":
            self.answer("", 302, Location=f"http://localhost:{self.server.server_port}/")
        elif self.path == "/round":
            self.answer("", 302, Location="/round")
        elif self.path == "/attachment":
            self.answer("x" * 1000, Content_Disposition="attachment; filename=attachment.bin")
        elif self.path == "/password":
            self.answer("<title>no entry</title><p>No entry.", 401, WWW_Authenticate="Basic realm=x")
        else:
            self.answer("", 404)


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_):
        pass


stopped = threading.Event()
subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1",
                "-keyout", folder / "key.pem", "-out", folder / "certificate.pem"], check=True, capture_output=True)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(folder / "certificate.pem", folder / "key.pem")
plain, secure = Server(("127.0.0.1", 0), Pages), Server(("127.0.0.1", 0), Pages)
secure.socket = context.wrap_socket(secure.socket, server_side=True)
for server in (plain, secure):
    threading.Thread(target=server.serve_forever, daemon=True).start()
print(plain.server_port, secure.server_port, flush=True)
# The test closes the input when it ends.
sys.stdin.read()
stopped.set()
