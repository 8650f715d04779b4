# proxy_test.sh PROXY SERVER: calls pass two proxies and come to the server, and come back. A client in Python speaks to
# the outer proxy; nothing waits longer than a few seconds.
set -euo pipefail
exec python3 - "$@" <<'END'
import re
import signal
import socket
import subprocess
import sys


def fail(*what):
    sys.exit(" ".join(str(item) for item in what))


signal.signal(signal.SIGALRM, lambda *_: fail("The programs hang"))
signal.alarm(20)
started = []


def start(*command):
    """The port of a program, which it prints."""
    started.append(subprocess.Popen(command, stdout=subprocess.PIPE, text=True))
    return int(started[-1].stdout.readline() or fail("Not started:", *command))


class Client:
    def __init__(self, proxy):
        self.proxy = ("127.0.0.1", proxy)
        self.udp = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.udp.bind(("127.0.0.1", 0))
        self.udp.settimeout(5)

    def send(self, method, branch, to="<sip:server@example.com>", hops=70, more="",
             uri="sip:server@example.com"):
        via = "client.example.com;rport" + (f";branch={branch}" if branch else "")
        self.udp.sendto(f"{method} {uri} SIP/2.0\r\nVia: SIP/2.0/UDP {via}\r\nTo: {to}\r\n"
                        f"From: <sip:client@example.com>;tag=c\r\nCall-ID: call\r\nCSeq: 1 {method}\r\n"
                        f"Max-Forwards: {hops}\r\n{more}\r\n".encode(), self.proxy)

    def receive(self, status):
        """The next response, which has this status, and comes back to the client and to nobody behind it."""
        text = self.udp.recv(65536).decode().replace("\r", "")
        vias = re.findall(r"^Via: (.*)$", text, re.MULTILINE)
        if not text.startswith(f"SIP/2.0 {status} ") or len(vias) != 1:
            fail(f"Not the {status} of this client:", text)
        if f";received=127.0.0.1;rport={self.udp.getsockname()[1]}" not in vias[0]:
            fail("Via does not say where the request came from:", text)
        return text

    def ask(self, status, *request, **fields):
        self.send(*request, **fields)
        return self.receive(status)


def field(text, name):
    return re.findall(rf"^{name}: (.*)$", text, re.MULTILINE)


def check(proxy, server, outer_proxy):
    client = Client(outer_proxy)
    options = client.ask(200, "OPTIONS", "z9hG4bK1")
    if field(options, "Allow") != ["ACK,BYE,CANCEL,INVITE,OPTIONS"] or not field(options, "Contact"):
        fail("Another answer to OPTIONS:", options)

    ringing, taken = client.ask(180, "INVITE", "z9hG4bK2"), client.receive(200)
    routes = [f"<sip:127.0.0.1:{port};lr>" for port in (proxy, outer_proxy)]
    if field(taken, "Record-Route") != routes or field(taken, "Contact") != [f"<sip:server@127.0.0.1:{server}>"]:
        fail("Another answer to INVITE:", taken)
    to = field(taken, "To")[0]
    if field(ringing, "To") != [to] or not re.search(";tag=[0-9a-f]{16}$", to):
        fail("Another tag:", ringing, taken)

    # The same branch behind both proxies: the server answers once more, and finds what CANCEL is about.
    if client.ask(200, "INVITE", "z9hG4bK2") != taken:
        fail("A request that comes again is answered anew")
    client.ask(200, "CANCEL", "z9hG4bK2")
    client.ask(481, "CANCEL", "z9hG4bK3")
    old = [client.ask(180, "INVITE", None), client.receive(200), client.ask(200, "INVITE", None)]
    if old[1] != old[2]:
        fail("A request without a branch that comes again is answered anew")

    route = "".join(f"Route: {item}\r\n" for item in reversed(routes))
    client.send("ACK", "z9hG4bK4", to, more=route)
    client.ask(200, "BYE", "z9hG4bK5", to, more=route)
    client.ask(481, "BYE", "z9hG4bK6", to, more=route)
    client.ask(405, "REGISTER", "z9hG4bK7")

    for proxies, hops, status in (0, 0, 483), (1, 1, 483), (2, 2, 200), (0, 256, 400):
        client.ask(status, "OPTIONS", f"z9hG4bK8{hops}", hops=hops)
    client.ask(200, "OPTIONS", "z9hG4bK82", hops=1, uri=f"sip:127.0.0.1:{server}")  # past the inner proxy
    client.ask(400, "OPTIONS", "z9hG4bK9", more="Record-Route: <sip:a\r\n")

    # What is dropped gets no answer, so the next one belongs to what comes behind it.
    own = client.udp.getsockname()[1]
    stray = f"SIP/2.0 200 OK\r\nVia: SIP/2.0/UDP 127.0.0.1:1, SIP/2.0/UDP 127.0.0.1:{own}\r\n\r\n"
    for wire in "", "?", stray, "OPTIONS sip:a SIP/2.0\r\nVia: x\r\n\r\n":
        client.udp.sendto(wire.encode(), client.proxy)
    client.send("ACK", "z9hG4bK10", hops=0)
    client.ask(405, "PUBLISH", "z9hG4bK11")


try:
    proxy_program, server_program = sys.argv[1:]
    server = start(server_program)
    proxy = start(proxy_program, str(server))
    check(proxy, server, start(proxy_program, str(proxy)))
    for program in started:
        program.terminate()
        if program.wait(5) != 0:
            fail("Ended with", program.returncode, *program.args)
finally:
    for program in started:
        program.kill()
        program.wait()
END
