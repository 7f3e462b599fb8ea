// Renders the labels of a ZPL job file, as a 203 dpi printer sees them, into PNG files.
import { readFileSync, writeFileSync } from "node:fs";
import { ready } from "zpl-renderer-js";

const [job, picture, widthMm = "110", heightMm = "60"] = process.argv.slice(2);
if (!picture) {
    console.error("usage: node render.mjs JOB.prn PICTURE.png [WIDTH_MM HEIGHT_MM]");
    process.exit(2);
}
const dotsPerMm = 8;

const { api } = await ready;
const labels = await api.zplToBase64MultipleAsync(
    readFileSync(job, "latin1"), Number(widthMm), Number(heightMm), dotsPerMm);
labels.forEach((png, index) => {
    const path = index === 0 ? picture : picture.replace(/(\.png)?$/, `-${index + 1}.png`);
    writeFileSync(path, Buffer.from(png, "base64"));
    console.log(path);
});
