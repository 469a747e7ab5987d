// Where the host platform and the device emulator meet: names in the state folder that both know.
//
// The state folder comes from the environment variable FPD_STATE; the board's absolute paths lie below it.
// Sockets are SOCK_SEQPACKET Unix sockets that the emulator listens on.
#pragma once

namespace hostlink
{
/// Keypad. The panel's first packet on a connection is one byte, 'r' for reading or 'w' for LED commands. A
/// reader gets packets of one 16-bit little-endian key word each. An LED command is the 32-bit
/// little-endian request number and the 76-byte block; the answer is a 32-bit result, 0 for success.
constexpr const char *keypadSocket = "/run/keypad.sock";
constexpr int ledBlockSize = 76;
constexpr unsigned int ledRequest = 0xc04c6bb4;

/// Message bus: one message a packet, in both directions. The longest holds a frame of 65535 bytes of data.
constexpr const char *busSocket = "/run/bus.sock";
constexpr int longestBusMessage = 65535 + 64;

/// The emulator's console: lines of text, a SOCK_STREAM socket.
constexpr const char *consoleSocket = "/run/control.sock";

/// The LCD: 320x240 pixels of 32 bits, then a 64-bit counter, odd while a change is being written and moved
/// on by two with each, and the monotonic time of the last change in ns.
constexpr const char *lcdFile = "/lcd.fb";
constexpr int lcdWidth = 320;
constexpr int lcdHeight = 240;
constexpr int lcdBytes = lcdWidth * lcdHeight * 4;
constexpr int lcdFileSize = lcdBytes + 16;

/// What stands on the LCD as data. A request is one byte, the answer a JSON array: the texts on the LCD for
/// 't', an empty one for any other, as a sign that the panel is at its events.
constexpr const char *screenSocket = "/run/screen.sock";
constexpr char screenTextRequest = 't';
constexpr char screenPingRequest = 'p';

/// The flash image and how many of the next reads shall fail, in decimal.
constexpr const char *flashFile = "/flash.img";
constexpr unsigned int flashSize = 20 * 1024 * 1024;
constexpr const char *flashFaultFile = "/fault/flash";
/// How many of the next sends on the bus shall fail, in decimal.
constexpr const char *busFaultFile = "/fault/bus-send";
/// Which of the next calls that bring a file to the disk shall fail: "CALL N ERRNO", the N-th from now on,
/// and with a fourth word all behind it, too. CALL is open, read, write, fsync, rename, remove, copy, sync or
/// any; N is counted down, 0 for none.
constexpr const char *diskFaultFile = "/fault/disk";

/// Persistent environment and link state: lines of NAME=VALUE.
constexpr const char *environmentFile = "/sysconf.env";
constexpr const char *linkFile = "/link";
constexpr const char *linkUsb = "usb_otg";
constexpr const char *linkLoop = "usb_host";
constexpr const char *linkEthernet = "eth1";
constexpr const char *linkPriority = "pc_priority";

/// Ports of services on the loopback address: lines of BOARDPORT=PORT, such as 8001=40123, written by the
/// emulator when it listens, so that the panels of two state folders never reach the same service.
constexpr const char *portFile = "/ports";
constexpr unsigned short restPort = 8001; ///< the REST service, on the board
constexpr unsigned short pushPort = 8002; ///< its WebSocket channel

/// Shell tools of the board; put in front of PATH.
constexpr const char *toolFolder = "/bin";
} // namespace hostlink
