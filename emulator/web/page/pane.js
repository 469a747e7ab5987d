// The pane at the side: what the panel writes and logs, as it comes, and the cables and sources of the device; all
// of it by words of the console.

const mostLines = 1000;
const recentSeconds = { writes: 300, log: 30 };
const lookMs = 2000;

export class Pane {
  #following = [];
  #timer = 0;

  constructor(connection, tell, onSize) {
    this.connection = connection;
    this.tell = tell;
    this.onSize = onSize;
    this.pane = document.getElementById("pane");
    for (const button of this.pane.querySelectorAll("[data-view]"))
      button.onclick = () => this.show(button.dataset.view);
    document.getElementById("close-pane").onclick = () => this.close();
  }

  toggle() {
    if (this.pane.hidden) this.open();
    else this.close();
  }

  open() {
    this.pane.hidden = false;
    this.show("writes");
    this.onSize();
  }

  close() {
    this.pane.hidden = true;
    this.#stop();
    this.onSize();
  }

  /** After the emulator was away: what was followed has ended. */
  resume() {
    if (this.pane.hidden) return;
    this.show(this.view);
  }

  show(view) {
    this.#stop();
    this.view = view;
    for (const button of this.pane.querySelectorAll("[data-view]")) {
      button.setAttribute("aria-pressed", button.dataset.view === view);
      document.getElementById(button.dataset.view).hidden = button.dataset.view !== view;
    }
    if (view === "device") {
      this.#look();
      this.#timer = setInterval(() => this.#look(), lookMs);
    } else {
      this.#follow(view);
    }
  }

  #stop() {
    clearInterval(this.#timer);
    for (const word of this.#following) word.cancel();
    this.#following = [];
  }

  #follow(word) {
    const list = document.getElementById(word);
    list.textContent = "";
    this.#following.push(this.connection.word([word, "--follow", "--since", String(recentSeconds[word])], line => {
      const atEnd = list.scrollHeight - list.scrollTop - list.clientHeight < 4;
      list.append(line + "\n");
      while (list.childNodes.length > mostLines) list.firstChild.remove();
      if (atEnd) list.scrollTop = list.scrollHeight;
    }));
  }

  async #look() {
    let device = null;
    try {
      await this.connection.word(["device", "show", "--json"], line => { device = line; }).ended;
    } catch {
      return;
    }
    const list = document.getElementById("device");
    const scrolled = list.scrollTop;
    list.replaceChildren(...this.#sections(device));
    list.scrollTop = scrolled;
  }

  #sections(device) {
    const sections = [
      ["Sources", Object.entries(device.inputs).filter(([name]) => !name.includes(" ")).map(([name, what]) =>
        [name, what, !what.startsWith("no signal"), on => ["signal", name, on]])],
      ["Ports to the wall", Object.entries(device.ports).map(([name, what]) =>
        [name, what, what.startsWith("link on"), on => [...name.split(" "), "link", on]])],
      ["Cables", [["USB cable", "usb"], ["Ethernet cable", "eth"], ["loop cable", "loop"]].map(([name, word]) =>
        [name, "", device.cables[name] !== "0", on => ["link", word, on === "on" ? "1" : "0"]])],
      ["PC", [["heartbeat", device.cables.heartbeat, device.cables.heartbeat === "on", on => ["heartbeat", on]]]],
    ];
    return sections.flatMap(([title, rows]) => {
      rows.sort(([one], [other]) => one.localeCompare(other, "en", { numeric: true }));
      const heading = document.createElement("h2"), list = document.createElement("ul");
      heading.textContent = title;
      list.append(...rows.flatMap(row => this.#row(...row)));
      return [heading, list];
    });
  }

  #row(name, what, isIn, wordsFor) {
    const label = document.createElement("li"), detail = document.createElement("small");
    const button = document.createElement("button");
    label.append(name, " ", detail);
    detail.textContent = what;
    button.textContent = isIn ? "Pull" : "Plug";
    button.dataset.plug = name;
    button.onclick = async () => {
      button.blur();
      await this.connection.word(wordsFor(isIn ? "off" : "on")).ended.catch(fault => this.tell(fault.message));
      this.#look();
    };
    return [label, button];
  }
}
