"""An FTP server on a loopback port: ftp_server.py FOLDER [CERTIFICATE]

Prints its port, then every command that it gets (the password left out). User "u" with password "geheim" may do
everything but write below "gesperrt". With a certificate (key and certificate in one file) it offers explicit TLS.
"""
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler, TLS_DTPHandler, TLS_FTPHandler
from pyftpdlib.servers import FTPServer

ordner, zertifikat = sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else None


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
dienst = meldend(TLS_FTPHandler if zertifikat else FTPHandler)
dienst.authorizer = anmeldungen
dienst.auth_failed_timeout = 0
dienst.use_sendfile = False
if zertifikat:
    dienst.certfile = zertifikat
    dienst.dtp_handler = Geduldig
server = FTPServer(("127.0.0.1", 0), dienst)
print(server.socket.getsockname()[1], flush=True)
server.serve_forever(handle_exit=False)
