// Records what is seen as an animated PNG: the first picture whole, of each later one the part that has changed.

const signature = [0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a];
const trueColour = 2, bits = 8;
const mostFrames = 5000, mostMsOfAFrame = 65535, msPerSecond = 1000;
const lastFrameMs = 1000;

const crcTable = Uint32Array.from({ length: 256 }, (_, number) => {
  for (let bit = 0; bit < 8; ++bit) number = number & 1 ? 0xedb88320 ^ (number >>> 1) : number >>> 1;
  return number;
});

function crc(bytes) {
  let value = 0xffffffff;
  for (const byte of bytes) value = crcTable[(value ^ byte) & 0xff] ^ (value >>> 8);
  return (value ^ 0xffffffff) >>> 0;
}

/** Fields: [size in bytes, number] or bytes. */
function bytesOf(...fields) {
  return Uint8Array.from(fields.flatMap(field => field instanceof Uint8Array ? [...field]
    : Array.from({ length: field[0] }, (_, i) => (field[1] >>> (8 * (field[0] - 1 - i))) & 0xff)));
}

function chunk(name, content = new Uint8Array()) {
  const named = new Uint8Array(4 + content.length);
  named.set(new TextEncoder().encode(name));
  named.set(content, 4);
  return [bytesOf([4, content.length]), named, bytesOf([4, crc(named)])];
}

/** Rows of a picture without alpha, each with the filter byte that a PNG has in front of it. */
async function pack({ data, width, height }) {
  const rows = new Uint8Array(height * (1 + width * 3));
  for (let y = 0, to = 0, from = 0; y < height; ++y) {
    ++to;
    for (let x = 0; x < width; ++x, ++from)
      for (let channel = 0; channel < 3; ++channel) rows[to++] = data[from++];
  }
  const packed = new Blob([rows]).stream().pipeThrough(new CompressionStream("deflate"));
  return new Uint8Array(await new Response(packed).arrayBuffer());
}

export class AnimatedPicture {
  #frames = [];

  constructor(lcd) {
    this.lcd = lcd;
    const { width, height } = lcd.canvas;
    this.#add([[0, 0, width, height]]);
    lcd.onShown = rects => this.#add(rects);
  }

  #add(rects) {
    if (this.#frames.length >= mostFrames) return;
    const left = Math.min(...rects.map(([x]) => x)), top = Math.min(...rects.map(([, y]) => y));
    const right = Math.max(...rects.map(([x, , width]) => x + width));
    const bottom = Math.max(...rects.map(([, y, , height]) => y + height));
    const pixels = this.lcd.context.getImageData(left, top, right - left, bottom - top);
    this.#frames.push({ left, top, width: right - left, height: bottom - top, at: performance.now(), packed: pack(pixels) });
  }

  /** The file; nothing is recorded any more. */
  async end() {
    this.lcd.onShown = () => {};
    const end = performance.now();
    const parts = [Uint8Array.from(signature)];
    const { width, height } = this.lcd.canvas;
    parts.push(...chunk("IHDR", bytesOf([4, width], [4, height], [1, bits], [1, trueColour], [3, 0])));
    parts.push(...chunk("acTL", bytesOf([4, this.#frames.length], [4, 0])));
    let sequence = 0;
    for (const [i, frame] of this.#frames.entries()) {
      const next = this.#frames[i + 1]?.at ?? Math.max(end, frame.at + lastFrameMs);
      const ms = Math.min(mostMsOfAFrame, Math.round(next - frame.at));
      parts.push(...chunk("fcTL", bytesOf([4, sequence++], [4, frame.width], [4, frame.height], [4, frame.left],
                                          [4, frame.top], [2, ms], [2, msPerSecond], [2, 0])));
      const packed = await frame.packed;
      parts.push(...(i === 0 ? chunk("IDAT", packed) : chunk("fdAT", bytesOf([4, sequence++], packed))));
    }
    parts.push(...chunk("IEND"));
    return new Blob(parts, { type: "image/png" });
  }
}
