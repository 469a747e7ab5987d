// The page's end of the stream: state and pictures come in, what the user does goes out. It comes back by itself
// when the emulator has been away.

const firstPauseMs = 250, longestPauseMs = 2000;

export const token = new URLSearchParams(location.hash.slice(1)).get("token") ?? "";
export const looksOnly = new URLSearchParams(location.search).has("view");

/** What the emulator answers to a request beside the stream. */
export function ask(path, method = "GET") {
  return fetch(path, { method, headers: token ? { Authorization: `Bearer ${token}` } : {} });
}

/** Events: open, state, picture (a promise may be given back to hold up the next), lost, refused. */
export class Connection {
  #socket = null;
  #pauseMs = firstPauseMs;
  #words = new Map();
  #nextId = 1;

  constructor(on) {
    this.on = on;
    this.mayDrive = false;
  }

  /** Asks first whether it may: of a stream that is refused a page learns nothing. */
  async open() {
    try {
      const answer = await ask("/api/layout.json");
      if (answer.status === 401)
        return this.on.refused();
      this.on.layout(await answer.json());
    } catch {
      return this.#lose();
    }
    const query = new URLSearchParams();
    if (token) query.set("token", token);
    if (looksOnly) query.set("view", "");
    const socket = new WebSocket(`ws://${location.host}/api/stream?${query}`);
    socket.binaryType = "arraybuffer";
    socket.onmessage = event => this.#take(socket, event.data);
    socket.onclose = () => this.#lose();
    this.#socket = socket;
  }

  send(message) {
    if (this.#socket?.readyState === WebSocket.OPEN)
      this.#socket.send(JSON.stringify(message));
  }

  /** A word of the console: its lines as they come, the end as a promise. Returns also how to end it. */
  word(words, onLine = () => {}) {
    const id = this.#nextId++;
    const ended = new Promise((resolve, reject) => this.#words.set(id, { onLine, resolve, reject }));
    ended.catch(() => {});
    this.send({ do: "word", id, words });
    return { ended, cancel: () => { this.#words.delete(id); this.send({ do: "cancel", id }); } };
  }

  async #take(socket, data) {
    if (data instanceof ArrayBuffer) {
      await this.on.picture(data);
      return socket === this.#socket && this.send({ do: "ack" });
    }
    const message = JSON.parse(data);
    if ("id" in message)
      return this.#takeAnswer(message);
    if ("mayDrive" in message) {
      this.mayDrive = message.mayDrive;
      this.#pauseMs = firstPauseMs;
      return this.on.open(this.mayDrive);
    }
    this.on.state(message.state);
    this.send({ do: "ack" });
  }

  #takeAnswer({ id, line, end, error }) {
    const word = this.#words.get(id);
    if (!word) return;
    if (end === undefined) return word.onLine(line);
    this.#words.delete(id);
    if (end) word.resolve();
    else word.reject(new Error(error));
  }

  #lose() {
    this.#socket = null;
    for (const word of this.#words.values()) word.reject(new Error("the emulator went away"));
    this.#words.clear();
    this.on.lost();
    setTimeout(() => this.open(), this.#pauseMs);
    this.#pauseMs = Math.min(this.#pauseMs * 2, longestPauseMs);
  }
}
