// The LCD: draws what has changed, as emulator/web/picturemessage.h tells it.

const headLength = 10, rectLength = 8, bytesPerPixel = 4;

export class Lcd {
  constructor(canvas) {
    this.canvas = canvas;
    this.context = canvas.getContext("2d", { alpha: false, willReadFrequently: true });
    this.shown = 0; // pictures so far
    this.changedUs = 0; // when the panel drew the last, by the emulator's clock
    this.onShown = () => {};
  }

  async show(message) {
    const head = new DataView(message);
    const rects = [];
    for (let i = 0, at = headLength; i < head.getUint16(8, true); ++i, at += rectLength)
      rects.push([0, 2, 4, 6].map(offset => head.getUint16(at + offset, true)));
    const packed = new Blob([new Uint8Array(message, headLength + rects.length * rectLength)]);
    const pixels = await new Response(packed.stream().pipeThrough(new DecompressionStream("deflate"))).arrayBuffer();
    let from = 0;
    for (const [x, y, width, height] of rects) {
      const bytes = new Uint8ClampedArray(pixels, from, width * height * bytesPerPixel);
      this.context.putImageData(new ImageData(bytes, width, height), x, y);
      from += bytes.length;
    }
    this.changedUs = Number(head.getBigInt64(0, true));
    ++this.shown;
    this.onShown(rects);
  }

  /** As a file. */
  png() {
    return new Promise(resolve => this.canvas.toBlob(resolve, "image/png"));
  }
}
