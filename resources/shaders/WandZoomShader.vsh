attribute vec4 position;
attribute vec2 texCoordIn;
attribute vec2 texCoord2In;

uniform mat4 modelViewProjectionMatrix;

varying vec2 texCoord;
varying vec2 texCoord2;

void main()
{
    texCoord = texCoordIn;
    texCoord2 = texCoord2In;
    gl_Position = modelViewProjectionMatrix * position;
}
