"""An FTP server on a loopback port: ftp_server.py FOLDER tls|offen

Prints its port, then every command that it gets (the password left out). User "u" with password "geheim" may do
everything but write below "gesperrt". With "tls" it offers explicit TLS by a certificate
that nobody vouches for.
"""
import subprocess
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler, TLS_DTPHandler, TLS_FTPHandler
from pyftpdlib.servers import FTPServer

ordner, tls = sys.argv[1], sys.argv[2] == "tls"


def meldend(handler):
    class Meldend(handler):
        def pre_process_command(self, line, cmd, arg):
            sichtbar = arg if cmd != "PASS" else "***"
            print(f"{cmd} {sichtbar}".strip(), flush=True)
            super().pre_process_command(line, cmd, arg)

    return Meldend


class Geduldig(TLS_DTPHandler):
    """A client may begin its TLS handshake before it says what the connection is for; the plain class hangs up."""

    def readable(self):
        return self._ssl_accepting or self.receive


anmeldungen = DummyAuthorizer()
anmeldungen.add_user("u", "geheim", ordner, perm="elradfmwMT")
anmeldungen.override_perm("u", ordner + "/gesperrt", perm="elr", recursive=True)
dienst = meldend(TLS_FTPHandler if tls else FTPHandler)
dienst.authorizer = anmeldungen
dienst.auth_failed_timeout = 0
dienst.use_sendfile = False
if tls:
    dienst.certfile = ordner + "/../z.pem"  # the key as well
    subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=127.0.0.1",
                    "-keyout", dienst.certfile, "-out", dienst.certfile], check=True, capture_output=True)
    dienst.dtp_handler = Geduldig
server = FTPServer(("127.0.0.1", 0), dienst)
print(server.socket.getsockname()[1], flush=True)
server.serve_forever(handle_exit=False)
