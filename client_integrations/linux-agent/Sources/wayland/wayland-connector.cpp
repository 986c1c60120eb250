// Connects its standard input, a Unix socket, to the address in its argument, reports that with a
// byte on its standard output, another socket, and stays until that is closed at the other end.
//
// The compositor takes this process for the client, and KWin grants interfaces by the program that
// it runs. So the program is small and has nothing that would have to be hidden from others.

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

int main(int argc, char** argv) {
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  if (argc != 2 || std::strlen(argv[1]) >= sizeof address.sun_path) return 2;
  std::memcpy(address.sun_path, argv[1], std::strlen(argv[1]));
  if (connect(STDIN_FILENO, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    return 1;
  close(STDIN_FILENO);  // what can be seen of this process gives no access to the connection
  char byte = 0;
  if (write(STDOUT_FILENO, &byte, 1) != 1) return 1;
  while (read(STDOUT_FILENO, &byte, 1) < 0 && errno == EINTR) {
  }
}
