// The keys as the emulator lists them, with their LEDs, and how large everything is: as many of the screen's own
// pixels to a pixel of the LCD as fit, a whole number of them.

const largest = 4; // CSS pixels to one of the LCD
const flatHeight = 520, narrowWidth = 700; // CSS pixels of a phone held across, or upright

export class Front {
  #keys = new Map();

  constructor(lcd) {
    this.lcd = lcd;
    this.room = document.getElementById("room");
    this.front = document.getElementById("front");
    new ResizeObserver(() => this.fit()).observe(this.room);
  }

  build(layout) {
    const inRows = document.getElementById("keys"), aside = document.getElementById("side-keys");
    inRows.replaceChildren();
    aside.replaceChildren();
    this.#keys.clear();
    for (const key of layout.keys) {
      if (key.name === "ok") {
        this.#keys.set(key.name, { key, element: document.getElementById("cap") });
        continue;
      }
      const element = document.createElement("div");
      const face = document.createElement("div");
      element.className = "key";
      element.dataset.key = key.name;
      face.className = "face";
      face.textContent = key.label;
      const led = document.createElement("div");
      led.className = "led";
      if (key.led >= 0) element.append(led);
      element.append(face);
      (key.led >= 0 ? inRows : aside).append(element);
      this.#keys.set(key.name, { key, element, led });
    }
    this.front.hidden = false;
    this.fit();
  }

  showLeds(leds) {
    for (const { key, led } of this.#keys.values())
      led?.classList.toggle("lit", leds[key.led] === "1");
  }

  showKey(name, down, latched) {
    const element = this.#keys.get(name)?.element;
    element?.classList.toggle("down", down);
    element?.classList.toggle("latched", latched);
  }

  names() {
    return this.#keys.keys();
  }

  fit() {
    const { innerWidth: width, innerHeight: height, devicePixelRatio: ratio } = window;
    const flat = height < flatHeight && width > height;
    document.body.classList.toggle("flat", flat);
    document.body.classList.toggle("tall", !flat && width < Math.max(narrowWidth, height * 0.75));
    for (let pixels = Math.floor(largest * ratio); pixels >= 1; --pixels) {
      const zoom = pixels / ratio;
      this.room.style.setProperty("--lcd", zoom);
      this.room.style.setProperty("--scale", 0.35 + 0.35 * zoom);
      if (this.front.offsetWidth <= this.#free() && this.front.offsetHeight <= this.room.clientHeight) break;
    }
    this.#alignToPixels(ratio);
  }

  #free() {
    const pane = document.getElementById("pane");
    const beside = getComputedStyle(pane).position === "static" ? pane.offsetWidth : 0;
    return this.room.clientWidth - beside;
  }

  /** A corner between two of the screen's pixels would blur every edge. */
  #alignToPixels(ratio) {
    const style = this.lcd.canvas.style;
    style.transform = "";
    const { left, top } = this.lcd.canvas.getBoundingClientRect();
    const shift = at => (Math.round(at * ratio) - at * ratio) / ratio;
    if (shift(left) || shift(top)) style.transform = `translate(${shift(left)}px, ${shift(top)}px)`;
  }
}
