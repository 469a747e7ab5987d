// Link state of the board: which cables are in, and which connection to a PC is preferred. Any thread.
#pragma once

extern "C" {
/// Non-zero while a PC is connected to the USB device port.
int get_usb_otg_status();
/// Non-zero while the USB loop connection is in.
int get_usb_host_status();
/// Non-zero while a PC is connected on Ethernet.
int get_eth1_status();
/// 0: USB is preferred, non-zero: Ethernet.
int get_pc_connect_priority();
void set_pc_connect_priority(int priority);
} // extern "C"
